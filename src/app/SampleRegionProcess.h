#pragma once

#include "platform/Descriptor.h"
#include "platform/Instant.h"

#include <QByteArray>

#include <optional>
#include <sys/types.h>

namespace vidora {

/// The made-up region that stands in for the real providers until the user imports a guide: a process of its own on the
/// loopback, which ends with this object, and with this process however that ends. Main thread.
class SampleRegionProcess
{
public:
    SampleRegionProcess() = default;
    ~SampleRegionProcess();

    /// Starts it on free ports and waits until it serves. `clock`: the day for which it makes its documents, the
    /// present one without. The endpoint configuration that leads to it, or nothing when it can't be started. Once.
    std::optional<QByteArray> start(std::optional<Instant> clock);

private:
    bool spawn(const QByteArrayList& command);

    pid_t m_process = -1;
    Descriptor m_input, m_output; ///< our ends of its standard streams
};

} // namespace vidora
