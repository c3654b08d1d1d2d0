#pragma once

#include "calendar/Event.h"

#include <functional>
#include <mutex>
#include <stdexcept>

namespace vidora {

enum class AuthorizationStatus
{
    NotDetermined = 0, ///< `requestAccessToEntityType` has to be called first
    Restricted = 1,
    Denied = 2,    ///< there is no calendar that can be written
    Authorized = 3 ///< a calendar can be written
};

enum class EntityType
{
    Event
};

/// Which events of a series a change is for. Events of a series are never taken apart: they are others' and stay as
/// they are.
enum class EventSpan
{
    ThisEvent
};

/// Why an event could not be saved, removed or committed.
struct EventStoreError
{
    QString localizedDescription; ///< for the log
};

/// A call that cannot be answered: a calendar that can't be read, a predicate that makes no sense. Never thrown for
/// what merely finds nothing.
class EventStoreException final : public std::runtime_error
{
public:
    EventStoreException(QString exceptionName, QString exceptionReason)
        : std::runtime_error(QString(exceptionName + QStringLiteral(": ") + exceptionReason).toStdString())
        , name(std::move(exceptionName))
        , reason(std::move(exceptionReason))
    {
    }

    QString name;
    QString reason;
};

/// Which events are asked for: those of the calendars that touch the period. An event touches it when it begins
/// before the period's end, and ends after the period's start or begins no earlier than it.
struct EventPredicate
{
    Instant startDate;
    Instant endDate;
    std::vector<Calendar> calendars;

    bool touches(Instant eventStart, Instant eventEnd) const
    {
        return eventStart < endDate && (eventEnd > startDate || eventStart >= startDate);
    }
};

/// The user's calendars: where alarms live, seen and rung by whatever calendar program the user has.
///
/// Saved and removed events are seen by the reads of this store at once, by everybody else after the `commit` that
/// follows: given to save or remove itself, or called. After a `commit` that succeeded, each change is durable: it
/// survives the death of the process at any moment, and of the machine. Changes that were not committed are lost with
/// the store, or by `reset`. A change that `commit` could not write stays to be committed with the next one.
///
/// Reads answer from what lies on this machine and see what other programs changed there meanwhile. An event that
/// repeats is shown once, by its first occurrence, and can't be saved or removed: it is somebody else's.
///
/// Any thread, one call at a time: calls exclude each other. Those on events, `reset`, `refreshSourcesIfNecessary` and
/// `commit` may wait for disk or network and belong on the queue of the alarms; never on the main thread. The
/// others never wait for the network. Events and calendars are values that the caller owns.
class EventStore
{
public:
    using Completion = std::function<void(bool granted, const std::optional<EventStoreError>& error)>;

    virtual ~EventStore() = default;

    /// Who is told after events came in from elsewhere, or a change that was committed had to be given up: what was
    /// read before may no longer hold. Told on any thread, once for many events; returns soon and asks the store
    /// nothing. Null: nobody, and nobody is being told any more when this returns.
    void setChangeObserver(std::function<void()> observer);

    virtual AuthorizationStatus authorizationStatusForEntityType(EntityType type) const = 0;
    /// Tries to have a calendar that can be written, making one where the form of the store can. The completion is
    /// called before this returns.
    virtual void requestAccessToEntityType(EntityType type, const Completion& completion) = 0;

    /// Forgets all changes that were not committed, and all that was read.
    virtual void reset() = 0;
    /// Brings what lies elsewhere up to date, if it is old enough to be worth asking. A failure is logged and leaves
    /// what was there.
    virtual void refreshSourcesIfNecessary() = 0;

    /// All calendars, in the order of their titles.
    virtual std::vector<Calendar> calendarsForEntityType(EntityType type) = 0;
    virtual std::optional<Calendar> calendarWithIdentifier(const QString& identifier) = 0;
    /// The calendar for events that the user chose none for; always one that can be written.
    virtual std::optional<Calendar> defaultCalendarForNewEvents() = 0;

    /// An end ahead of the start throws EventStoreException.
    EventPredicate predicateForEventsWithStartDate(Instant startDate, Instant endDate,
                                                   std::vector<Calendar> calendars) const;
    /// In the order of their starts, then of their identifiers. Throws EventStoreException when one of the calendars is
    /// gone or can't be read.
    virtual std::vector<Event> eventsMatchingPredicate(const EventPredicate& predicate) = 0;
    /// The same events, one by one, until `usingBlock` sets `stop`. The events are those of the moment of the call: the
    /// block may save and remove.
    void enumerateEventsMatchingPredicate(const EventPredicate& predicate,
                                          const std::function<void(const Event& event, bool& stop)>& usingBlock);
    virtual std::optional<Event> eventWithIdentifier(const QString& identifier) = 0;

    /// Puts a new event into its calendar and gives it its identifier, or changes the stored event of that identifier.
    /// Nothing on success. An error when the event's calendar is gone or can't be written, when the event is no longer
    /// there, repeats, or ends before it starts.
    virtual std::optional<EventStoreError> saveEvent(Event& event, EventSpan span, bool commit) = 0;
    std::optional<EventStoreError> saveEvent(Event& event, EventSpan span) { return saveEvent(event, span, true); }
    /// Nothing on success; an error for the same reasons.
    virtual std::optional<EventStoreError> removeEvent(const Event& event, EventSpan span, bool commit) = 0;
    /// Writes all changes. Nothing on success, and when there was nothing to write.
    virtual std::optional<EventStoreError> commit() = 0;

protected:
    void notifyChanged();

private:
    std::mutex m_observerMutex;
    std::function<void()> m_observer;
};

} // namespace vidora
