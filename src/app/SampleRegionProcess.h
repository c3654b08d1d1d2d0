#pragma once

#include "platform/Instant.h"

#include <QByteArray>

#include <memory>
#include <optional>

class QProcess;

namespace vidora {

/// The made-up region that stands in for the real providers until the user imports a guide: a process of its own on the
/// loopback, which ends with this object, and with this process however that ends. Main thread.
class SampleRegionProcess
{
public:
    SampleRegionProcess();
    ~SampleRegionProcess();

    /// Starts it on free ports and waits until it serves. `clock`: the day for which it makes its documents, the
    /// present one without. The endpoint configuration that leads to it, or nothing when it can't be started.
    std::optional<QByteArray> start(std::optional<Instant> clock);

private:
    std::unique_ptr<QProcess> m_process;
};

} // namespace vidora
