#include "platform/SecretStore.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

namespace vidora {

namespace {

constexpr qint64 maximalSize = 1024 * 1024;

QJsonObject readSecrets(const QString& file)
{
    const QFileInfo info(file);
    if (!info.exists())
        return {};
    constexpr QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    if ((info.permissions() & others) != 0 || info.ownerId() != ::geteuid()) {
        Log::line(QStringLiteral("file %1 is open to others and is not used").arg(file));
        return {};
    }
    return QJsonDocument::fromJson(AtomicFile::read(file, maximalSize).value_or(QByteArray())).object();
}

bool writeSecrets(const QString& file, const QJsonObject& secrets)
{
    return !AtomicFile::write(file, QJsonDocument(secrets).toJson(), AtomicFile::Access::OwnerOnly).failed();
}

} // namespace

FileSecretStore::FileSecretStore(QString file)
    : m_file(std::move(file))
{
}

std::optional<QString> FileSecretStore::secret(const QString& account)
{
    const QJsonValue value = readSecrets(m_file).value(account);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

bool FileSecretStore::setSecret(const QString& account, const QString& secret)
{
    QJsonObject secrets = readSecrets(m_file);
    secrets.insert(account, secret);
    return writeSecrets(m_file, secrets);
}

bool FileSecretStore::removeSecret(const QString& account)
{
    QJsonObject secrets = readSecrets(m_file);
    if (!secrets.contains(account))
        return true;
    secrets.remove(account);
    return secrets.isEmpty() ? QFile::remove(m_file) : writeSecrets(m_file, secrets);
}

FallbackSecretStore::FallbackSecretStore(std::unique_ptr<SecretStore> first, std::unique_ptr<SecretStore> second)
    : m_first(std::move(first))
    , m_second(std::move(second))
{
}

std::optional<QString> FallbackSecretStore::secret(const QString& account)
{
    auto secret = m_second->secret(account);
    return secret ? secret : m_first->secret(account);
}

bool FallbackSecretStore::setSecret(const QString& account, const QString& secret)
{
    if (m_first->setSecret(account, secret))
        return m_second->removeSecret(account);
    Log::line(QStringLiteral("no secret service keeps passwords; they are in a file of their owner alone"));
    return m_second->setSecret(account, secret);
}

bool FallbackSecretStore::removeSecret(const QString& account)
{
    const bool inSecond = m_second->secret(account).has_value();
    return inSecond ? m_second->removeSecret(account) : m_first->removeSecret(account);
}

} // namespace vidora
