#pragma once

#include <QString>

#include <memory>
#include <optional>

namespace vidora {

/// Where passwords are kept: in no setting, no log and no argument of a command. Any thread but the main one, as a call
/// may wait, for a bounded time.
class SecretStore
{
public:
    virtual ~SecretStore() = default;

    /// Nothing when there is none, or none can be had.
    virtual std::optional<QString> secret(const QString& account) = 0;
    /// False when it could not be kept.
    [[nodiscard]] virtual bool setSecret(const QString& account, const QString& secret) = 0;
    /// True when there is none any more.
    [[nodiscard]] virtual bool removeSecret(const QString& account) = 0;
};

/// One file that nobody but its owner can read. Two processes must not write one file at the same time.
class FileSecretStore final : public SecretStore
{
public:
    /// `file`: path of the file; need not exist.
    explicit FileSecretStore(QString file);

    /// Nothing, too, when others could have read or written the file: such a secret is no more.
    std::optional<QString> secret(const QString& account) override;
    bool setSecret(const QString& account, const QString& secret) override;
    bool removeSecret(const QString& account) override;

private:
    const QString m_file;
};

/// A store that may be out of order, with another one in its place then.
class FallbackSecretStore final : public SecretStore
{
public:
    FallbackSecretStore(std::unique_ptr<SecretStore> first, std::unique_ptr<SecretStore> second);

    /// Looks where a secret is found without asking anybody first: into the second store.
    std::optional<QString> secret(const QString& account) override;
    /// Keeps it in one of them alone.
    bool setSecret(const QString& account, const QString& secret) override;
    bool removeSecret(const QString& account) override;

private:
    const std::unique_ptr<SecretStore> m_first;
    const std::unique_ptr<SecretStore> m_second;
};

} // namespace vidora
