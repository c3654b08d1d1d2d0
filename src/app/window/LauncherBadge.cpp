#include "app/window/LauncherBadge.h"

#include <QDBusMessage>
#include <QVariantMap>

namespace vidora {

LauncherBadge::LauncherBadge(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

void LauncherBadge::setCount(int count)
{
    if (count == m_count)
        return;
    m_count = count;
    if (!m_bus.isConnected())
        return;
    QDBusMessage update =
        QDBusMessage::createSignal(QStringLiteral("/tv/ostrel/vidora"),
                                   QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    // Docks know a program by its desktop file.
    update << QStringLiteral("application://tv.ostrel.vidora.desktop")
           << QVariantMap{{QStringLiteral("count"), qint64{count}}, {QStringLiteral("count-visible"), count > 0}};
    m_bus.send(update);
}

} // namespace vidora
