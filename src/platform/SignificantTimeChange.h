#pragma once

#include "platform/Descriptor.h"
#include "platform/Instant.h"

#include <QString>
#include <QTimeZone>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace vidora {

/// Calls a handler when what the clock on the wall shows has changed by more than its running: at midnight of the
/// device's zone, after the machine's clock was set, after its zone was changed.
///
/// Made and destroyed on the main thread while there is an application object; the handler is called there.
class SignificantTimeChange
{
public:
    using Handler = std::function<void()>;

    /// Where the notices come from; a test gives others.
    struct Sources
    {
        /// Readable when it is midnight or the clock was set.
        Descriptor timer;
        /// Replaced as a whole when the zone changes.
        QString zoneFile;
        std::function<QTimeZone()> zone;

        static Sources ofMachine();
    };

    explicit SignificantTimeChange(Handler handler, Sources sources = Sources::ofMachine());
    ~SignificantTimeChange();
    SignificantTimeChange(const SignificantTimeChange&) = delete;
    SignificantTimeChange& operator=(const SignificantTimeChange&) = delete;

    /// The start of the day after that of the given moment; where a change of the clocks skips midnight, the first
    /// moment of that day.
    static Instant nextMidnight(Instant now, const QTimeZone& zone);

private:
    void armTimer();
    void timerFired();
    void folderChanged();

    const Handler m_handler;
    const Sources m_sources;
    Descriptor m_folder;
    std::unique_ptr<QSocketNotifier> m_timerNotifier;
    std::unique_ptr<QSocketNotifier> m_folderNotifier;
};

} // namespace vidora
