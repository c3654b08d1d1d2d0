#pragma once

#include "alarms/AlarmSurroundings.h"
#include "alarms/CalendarEvents.h"
#include "store/TVListings.h"

#include <unordered_set>

namespace vidora {

/// The coming broadcasts of favourites, in the order of their starts, and by address.
struct FavoriteSchedule
{
    SharedShowList shows = std::make_shared<const ShowList>();
    std::shared_ptr<const ShowsByURL> byURL = std::make_shared<const ShowsByURL>();
};

/// How far ahead and back the calendar is looked at.
constexpr Seconds calendarWindow = 60 * dayStep;

/// Whether an event's address has the application's own scheme: all others belong to others and are never touched.
bool isOurs(const Event& event, const QString& scheme);
/// Whether such an event is this device's to move, to clean up and to remove: it bears its mark, or none, as all did
/// once.
bool isOwn(const Event& event, const AlarmSurroundings& surroundings);
/// An event with an alarm for one broadcast, bearing a device's mark. An event without an end ends where it starts.
Event eventForBroadcast(const Calendar& calendar, const QString& deviceMark, const QString& title,
                        const QString& channelTitle, std::optional<URL> url, Instant start, std::optional<Instant> end,
                        int minutes);
/// Logs an operation of the calendar that could not be answered.
void logPredicateException(const EventStoreException& exception, const std::optional<Calendar>& calendar);

/// The work on the calendar of one synchronisation, stage by stage, for one calendar. Takes time in proportion to the
/// events and the broadcasts together. On the queue of the alarms; throws what the event store throws.
class CalendarSynchronisation
{
public:
    CalendarSynchronisation(const AlarmSurroundings& surroundings, Calendar calendar);

    /// Removes events of this device that are broken or stand there twice. Those of ours that stay.
    std::vector<Event> cleanUp(const std::vector<Event>& events);
    /// Index of those of our events with an alarm that begin after a moment.
    CalendarEvents index(const std::vector<Event>& events, Instant now) const;

    struct Reconciled
    {
        std::vector<Event> events; ///< what the calendar holds from now to the end of the window
        QStringList removed;       ///< identifiers that leave the index
    };
    /// Makes this device's events that begin after `now` agree with the schedule: those of moved broadcasts follow,
    /// those of vanished ones go.
    Reconciled reconcile(const FavoriteSchedule& schedule, Instant now, Instant windowEnd);
    /// Makes the events that favourites with an alarm lack: one a broadcast, whichever device has made it.
    void createMissing(const FavoriteSchedule& schedule, const Favorites& favorites, const std::vector<Event>& events,
                       Instant now);

    /// Removes an event without a broadcast, unless the broadcast may only be missing because its channel's list isn't
    /// loaded. True when the event leaves the index.
    bool removeCalendarEvent(const Event& event);

private:
    /// Broadcasts of one title in the order of their starts.
    using ShowsByTitle = std::unordered_map<QString, ShowList>;
    enum class Operation
    {
        Keep,
        Update,
        Remove
    };
    static ShowsByTitle byTitle(const ShowList& shows);
    /// What becomes of an event of ours. An event to be updated is changed already.
    Operation judge(Event& event, const FavoriteSchedule& schedule, const ShowsByTitle& byTitle) const;
    /// True when it is gone.
    bool removeEvent(const Event& event, const char* failure);
    /// An alarm in silent hours, or none at all: such events are done with ahead of the judgement. True then.
    bool isDoneWith(const Event& event, Instant now, QStringList& removed);
    void commit();

    const AlarmSurroundings& m_surroundings;
    const Calendar m_calendar;
    const SilentPeriod m_silentPeriod;
};

} // namespace vidora
