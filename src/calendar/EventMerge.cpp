#include "calendar/EventMerge.h"

#include <algorithm>

namespace vidora {

namespace {

/// What is in `alarms` and not in `others`; an alarm that stands there twice counts twice.
std::vector<EventAlarm> without(std::vector<EventAlarm> alarms, const std::vector<EventAlarm>& others)
{
    for (const EventAlarm& other : others) {
        const auto found = std::find(alarms.begin(), alarms.end(), other);
        if (found != alarms.end())
            alarms.erase(found);
    }
    return alarms;
}

template<typename Value>
void take(Value Event::*property, const Event& base, const Event& ours, Event& result)
{
    if (base.*property != ours.*property)
        result.*property = ours.*property;
}

} // namespace

Event merged(const Event& base, const Event& ours, const Event& theirs)
{
    Event result = theirs;
    take(&Event::title, base, ours, result);
    take(&Event::location, base, ours, result);
    take(&Event::url, base, ours, result);
    take(&Event::device, base, ours, result);
    // Start and end go together: one of either side would be nobody's event.
    if (base.startDate != ours.startDate || base.endDate != ours.endDate || base.allDay != ours.allDay) {
        result.startDate = ours.startDate;
        result.endDate = ours.endDate;
        result.allDay = ours.allDay;
    }
    const std::vector<EventAlarm> added = without(ours.alarms, base.alarms);
    result.alarms = without(theirs.alarms, without(base.alarms, ours.alarms));
    for (const EventAlarm& alarm : without(added, result.alarms))
        result.alarms.push_back(alarm);
    return result;
}

Event laidOver(const Event& ours, const Event& theirs)
{
    Event result = theirs;
    result.title = ours.title;
    result.location = ours.location;
    result.url = ours.url;
    result.device = ours.device;
    result.startDate = ours.startDate;
    result.endDate = ours.endDate;
    result.allDay = ours.allDay;
    if (!theirs.hasAlarms()) {
        result.alarms = ours.alarms;
    } else if (ours.hasAlarms()) {
        // In the place of the one that told; an alarm of theirs that rings at the same time is the same.
        std::erase(result.alarms, ours.tellingAlarm());
        const auto telling = std::find(result.alarms.begin(), result.alarms.end(), theirs.tellingAlarm());
        if (telling == result.alarms.end())
            result.alarms.push_back(ours.tellingAlarm());
        else
            *telling = ours.tellingAlarm();
    }
    return result;
}

bool sameContent(const Event& a, const Event& b)
{
    return a.title == b.title && a.location == b.location && a.url == b.url && a.device == b.device &&
           a.startDate == b.startDate && a.endDate == b.endDate && a.allDay == b.allDay && a.alarms == b.alarms;
}

} // namespace vidora
