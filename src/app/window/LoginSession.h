#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <functional>

namespace vidora {

/// What the login manager tells (org.freedesktop.login1): that the machine goes to sleep and is back, that the user's
/// session is locked and unlocked. Where there is no such manager nothing is told. Main thread.
class LoginSession final : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(bool)>;

    /// Called with true when it begins, with false when it is over. `session`: its name with the manager; without one
    /// that of this process.
    LoginSession(Handler asleep, Handler locked, QDBusConnection bus = QDBusConnection::systemBus(),
                 const QString& session = qEnvironmentVariable("XDG_SESSION_ID"));

private Q_SLOTS:
    void prepareForSleep(bool begins);
    void sessionChanged(const QString& interface, const QVariantMap& changed, const QStringList& invalidated);

private:
    void findSession(const QString& session);
    void followSession(const QString& path);

    const Handler m_asleep, m_locked;
    QDBusConnection m_bus;
};

} // namespace vidora
