#include "platform/SecretStore.h"
#include "support/ChildProcess.h"
#include "support/RawFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;

TEST(SecretStore, KeepsSecretsFromOthers)
{
    QTemporaryDir home;
    const QString path = home.filePath(QStringLiteral("secrets"));
    FileSecretStore store(path);
    ASSERT_TRUE(store.setSecret(QStringLiteral("ana@here"), QStringLiteral("s3cret")));
    EXPECT_EQ(store.secret(QStringLiteral("ana@here")), QStringLiteral("s3cret"));
    EXPECT_EQ(QFile(path).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    EXPECT_FALSE(store.secret(QStringLiteral("ana@here")));
}

/// A keyring, locked or not.
class Keyring final : public SecretStore
{
public:
    Keyring(std::map<QString, QString>& kept, bool& isOpen)
        : m_kept(kept)
        , m_isOpen(isOpen)
    {
    }
    std::optional<QString> secret(const QString& account) override
    {
        return m_isOpen && m_kept.contains(account) ? std::optional(m_kept[account]) : std::nullopt;
    }
    bool setSecret(const QString& account, const QString& secret) override
    {
        if (m_isOpen)
            m_kept[account] = secret;
        return m_isOpen;
    }
    bool removeSecret(const QString& account) override
    {
        if (m_isOpen)
            m_kept.erase(account);
        return m_isOpen;
    }

private:
    std::map<QString, QString>& m_kept;
    bool& m_isOpen;
};

TEST(SecretStore, PrefersAKeyringAndKeepsASecretInOnePlace)
{
    QTemporaryDir home;
    const QString path = home.filePath(QStringLiteral("secrets"));
    const QString ana = QStringLiteral("ana");
    std::map<QString, QString> kept;
    bool isOpen = false;
    FallbackSecretStore store(std::make_unique<Keyring>(kept, isOpen), std::make_unique<FileSecretStore>(path));
    ASSERT_TRUE(store.setSecret(ana, QStringLiteral("first")));
    EXPECT_TRUE(readRaw(path).contains("first"));
    isOpen = true;
    EXPECT_EQ(store.secret(ana), QStringLiteral("first"));
    ASSERT_TRUE(store.setSecret(ana, QStringLiteral("second")));
    EXPECT_EQ(kept[ana], QStringLiteral("second"));
    EXPECT_FALSE(QFile::exists(path));
    isOpen = false;
    EXPECT_FALSE(store.secret(ana));
    EXPECT_FALSE(store.removeSecret(ana));
    isOpen = true;
    EXPECT_TRUE(store.removeSecret(ana));
    EXPECT_TRUE(kept.empty());
}

} // namespace
} // namespace vidora
