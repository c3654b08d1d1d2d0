#include "app/window/ConnectivityMonitor.h"

#include "platform/Log.h"

#include <QNetworkInformation>

namespace vidora {

ConnectivityMonitor::ConnectivityMonitor(Connectivity& connectivity)
    : m_connectivity(connectivity)
{
    if (!QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
        Log::line(QStringLiteral("no network monitor: requests don't wait for a network"));
        return;
    }
    connect(QNetworkInformation::instance(), &QNetworkInformation::reachabilityChanged, this,
            &ConnectivityMonitor::follow);
    follow();
}

ConnectivityMonitor::~ConnectivityMonitor()
{
    m_connectivity.setConnected(true);
}

// A network without a way to the internet is one: the user's guide may lie in it. A monitor that knows says nothing
// certain only while it is asleep or connects.
void ConnectivityMonitor::follow()
{
    using Reachability = QNetworkInformation::Reachability;
    const Reachability reachability = QNetworkInformation::instance()->reachability();
    m_knows = m_knows || reachability != Reachability::Unknown;
    const bool isConnected =
        !m_knows || (reachability != Reachability::Unknown && reachability != Reachability::Disconnected);
    if (isConnected != m_connectivity.isConnected())
        Log::line(isConnected ? QStringLiteral("the network is there") : QStringLiteral("the network is away"));
    m_connectivity.setConnected(isConnected);
}

} // namespace vidora
