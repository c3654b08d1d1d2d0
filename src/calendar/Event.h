#pragma once

#include "platform/Instant.h"
#include "platform/URL.h"

#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace vidora {

/// Red, green, blue and opacity, each from 0 to 1.
struct CalendarColor
{
    double red = 0.5;
    double green = 0.5;
    double blue = 0.5;
    double alpha = 0.5;

    /// "#RRGGBB" or "#RRGGBBAA", in either case; nothing for any other text.
    static std::optional<CalendarColor> fromText(QStringView text);

    friend bool operator==(const CalendarColor&, const CalendarColor&) = default;
};

/// A calendar as it was when the store was asked. A value; two are equal when they stand for the same calendar,
/// whatever has been renamed or recoloured meanwhile.
struct Calendar
{
    QString calendarIdentifier; ///< lasts on this device for as long as the calendar does; never empty
    QString title;
    QString source;                     ///< title of the account or place that the calendar belongs to
    std::optional<CalendarColor> color; ///< nothing when the calendar names none
    bool allowsContentModifications = false;
    /// Where it lies on its server: the same on all devices, and for as long as the calendar lies there, whatever it is
    /// called. Empty for one that is on no server.
    QString address = {};

    friend bool operator==(const Calendar& a, const Calendar& b)
    {
        return a.calendarIdentifier == b.calendarIdentifier;
    }
};

/// An alarm of an event: it rings this long after the event's start; ahead of it when negative. An alarm at a fixed
/// moment is given relative to the start as well.
struct EventAlarm
{
    Seconds relativeOffset{0};

    static EventAlarm alarmWithRelativeOffset(Seconds offset) { return {offset}; }

    friend bool operator==(const EventAlarm&, const EventAlarm&) = default;
};

/// An event of a calendar: a copy of what the store holds, detached from it. A change reaches the store by `saveEvent`
/// alone. Of an event that came out of the store only the properties below are ours to see; all others that it has stay
/// with the store and survive a change of these.
struct Event
{
    QString eventIdentifier; ///< empty until it is first saved; then for good
    /// Mark of the device that made the event; empty for what others made, and for events of before there were marks.
    QString device;
    QString title;
    QString location;
    std::optional<URL> url;
    Instant startDate;
    Instant endDate;
    bool allDay = false;
    Calendar calendar;
    std::vector<EventAlarm> alarms; ///< in the order of the event
    /// The event as it was when it came out of a store that others write to as well: tells what was changed since from
    /// what was only read. The store's; shared by copies.
    std::shared_ptr<const Event> asRead;

    bool hasAlarms() const { return !alarms.empty(); }
    /// The alarm that tells how the event rings: the first ahead of the start, else the last. The event has alarms.
    EventAlarm tellingAlarm() const
    {
        for (const EventAlarm& alarm : alarms) {
            if (alarm.relativeOffset < Seconds{0})
                return alarm;
        }
        return alarms.back();
    }
};

} // namespace vidora
