#include "app/window/LoginSession.h"

#include "platform/Log.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace vidora {

namespace {

const QString service = QStringLiteral("org.freedesktop.login1");
const QString manager = QStringLiteral("org.freedesktop.login1.Manager");
const QString managerPath = QStringLiteral("/org/freedesktop/login1");

} // namespace

LoginSession::LoginSession(Handler asleep, Handler locked, QDBusConnection bus, const QString& session)
    : m_asleep(std::move(asleep))
    , m_locked(std::move(locked))
    , m_bus(std::move(bus))
{
    if (!m_bus.isConnected())
        return;
    m_bus.connect(service, managerPath, manager, QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
    findSession(session);
}

void LoginSession::findSession(const QString& session)
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, managerPath, manager,
                                                           session.isEmpty() ? QStringLiteral("GetSessionByPID")
                                                                             : QStringLiteral("GetSession"));
    if (session.isEmpty())
        question << static_cast<quint32>(QCoreApplication::applicationPid());
    else
        question << session;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusObjectPath> path = *answer;
        answer->deleteLater();
        if (path.isError())
            Log::line(QStringLiteral("login manager: %1").arg(path.error().message()));
        else
            followSession(path.value().path());
    });
}

void LoginSession::followSession(const QString& path)
{
    m_bus.connect(service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"),
                  this, SLOT(sessionChanged(QString, QVariantMap, QStringList)));
}

void LoginSession::prepareForSleep(bool begins)
{
    m_asleep(begins);
}

void LoginSession::sessionChanged(const QString&, const QVariantMap& changed, const QStringList&)
{
    const QVariant isLocked = changed.value(QStringLiteral("LockedHint"));
    if (isLocked.typeId() == QMetaType::Bool)
        m_locked(isLocked.toBool());
}

} // namespace vidora
