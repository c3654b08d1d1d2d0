#include "platform/SecretStore.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"

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
    return !AtomicFile::write(file, QJsonDocument(secrets).toJson(), AtomicFile::Access::OwnerOnly);
}

} // namespace

SecretStore::SecretStore(QString file)
    : m_file(std::move(file))
{
}

std::optional<QString> SecretStore::secret(const QString& account) const
{
    const QJsonValue value = readSecrets(m_file).value(account);
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

bool SecretStore::setSecret(const QString& account, const QString& secret)
{
    QJsonObject secrets = readSecrets(m_file);
    secrets.insert(account, secret);
    return writeSecrets(m_file, secrets);
}

bool SecretStore::removeSecret(const QString& account)
{
    QJsonObject secrets = readSecrets(m_file);
    secrets.remove(account);
    return writeSecrets(m_file, secrets);
}

} // namespace vidora
