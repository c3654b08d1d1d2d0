#pragma once

#include "platform/Clock.h"
#include "platform/Descriptor.h"

#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class QSocketNotifier;

namespace vidora {

/// Calls a handler when memory runs short: by the kernel's account of stalls, of the machine or else of the program's
/// own control group (Documentation/accounting/psi.rst of Linux). Where the kernel has neither or doesn't permit it, no
/// warning ever comes.
///
/// Made and destroyed on the main thread while there is an application object; the handler is called there.
class MemoryWarnings
{
public:
    using Handler = std::function<void()>;

    /// Shortage lasts, and the kernel reports it every two seconds; between two warnings lie at least this much.
    static constexpr Seconds shortestGap{30};

    /// The descriptor is one on which exceptional data (POLLPRI) tells of a shortage; it may be none.
    MemoryWarnings(Handler handler, const Clock& clock, Descriptor trigger = openTrigger(pressureFiles()));
    ~MemoryWarnings();
    MemoryWarnings(const MemoryWarnings&) = delete;
    MemoryWarnings& operator=(const MemoryWarnings&) = delete;

    /// Sets the trigger in the first of the files that takes it.
    static Descriptor openTrigger(const QStringList& files);
    static QStringList pressureFiles();

private:
    void warn();

    const Handler m_handler;
    const Clock& m_clock;
    const Descriptor m_trigger;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::optional<Instant> m_last;
};

} // namespace vidora
