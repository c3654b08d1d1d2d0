#pragma once

#include "platform/Connectivity.h"

#include <QObject>

namespace vidora {

/// Tells what the desktop's network monitor says. On a machine without one nothing is told, and the network counts as
/// there. Main thread; what it is told to outlives it, and counts as connected afterwards.
class ConnectivityMonitor final : public QObject
{
public:
    explicit ConnectivityMonitor(Connectivity& connectivity);
    ~ConnectivityMonitor() override;

private:
    void follow();

    Connectivity& m_connectivity;
    bool m_knows = false;
};

} // namespace vidora
