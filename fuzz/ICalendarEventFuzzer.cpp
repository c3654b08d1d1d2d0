#include "calendar/ICalendarEvent.h"

#include <cstdlib>

/// Files of other calendar programs: whatever they hold is read or not, and a change of what was read is read back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vidora;
    const QByteArray document(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto read = ICalendarEvent::read(document);
    if (!read)
        return 0;
    Event event = read->event;
    event.title = QStringLiteral("Moved");
    event.alarms = {EventAlarm::alarmWithRelativeOffset(Seconds(-600))};
    const auto changed = ICalendarEvent::change(document, event, instantFromUnixMilliseconds(0));
    if (!changed)
        return read->event.title == event.title && read->event.alarms == event.alarms ? 0 : (std::abort(), 0);
    const auto again = ICalendarEvent::read(*changed);
    if (changed->size() <= ICalendarEvent::maximumSize && (!again || again->event.title != event.title))
        std::abort();
    return 0;
}
