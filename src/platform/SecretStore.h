#pragma once

#include <QString>

#include <optional>

namespace vidora {

/// Passwords, in one file that nobody but its owner can read; in no setting, no log and no argument of a command.
/// Any thread; two processes must not write one file at the same time.
class SecretStore
{
public:
    /// `file`: path of the file; need not exist.
    explicit SecretStore(QString file);

    /// Nothing when there is none, or when others could have read or written the file: such a secret is no more.
    std::optional<QString> secret(const QString& account) const;
    /// False when it could not be kept.
    bool setSecret(const QString& account, const QString& secret);
    bool removeSecret(const QString& account);

private:
    const QString m_file;
};

} // namespace vidora
