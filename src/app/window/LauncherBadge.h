#pragma once

#include <QDBusConnection>

namespace vidora {

/// A number on the program's icon in the dock or task bar, told by the signal "Update" of the D-Bus interface
/// "com.canonical.Unity.LauncherEntry", to which the docks of Linux desktops listen. Without a bus nothing happens.
/// Main thread.
class LauncherBadge
{
public:
    explicit LauncherBadge(QDBusConnection bus = QDBusConnection::sessionBus());

    /// 0 takes the number off.
    void setCount(int count);

private:
    QDBusConnection m_bus;
    int m_count = 0;
};

} // namespace vidora
