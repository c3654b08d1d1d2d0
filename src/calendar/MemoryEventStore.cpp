#include "calendar/MemoryEventStore.h"

#include <algorithm>
#include <tuple>

namespace vidora {

MemoryEventStore::MemoryEventStore(std::vector<Calendar> calendars, AuthorizationStatus status)
    : m_status(status)
{
    setCalendars(std::move(calendars));
}

void MemoryEventStore::setAuthorizationStatus(AuthorizationStatus status, bool grantsRequests)
{
    const std::lock_guard lock(m_mutex);
    m_status = status;
    m_grantsRequests = grantsRequests;
}

void MemoryEventStore::setCalendars(std::vector<Calendar> calendars)
{
    const std::lock_guard lock(m_mutex);
    std::stable_sort(calendars.begin(), calendars.end(),
                     [](const Calendar& a, const Calendar& b) { return a.title < b.title; });
    m_calendars = std::move(calendars);
}

void MemoryEventStore::setFailure(std::optional<EventStoreError> failure)
{
    const std::lock_guard lock(m_mutex);
    m_failure = std::move(failure);
}

void MemoryEventStore::setUnreadable(bool unreadable)
{
    const std::lock_guard lock(m_mutex);
    m_unreadable = unreadable;
}

std::vector<Event> MemoryEventStore::committedEvents() const
{
    const std::lock_guard lock(m_mutex);
    std::vector<Event> events;
    for (const auto& [identifier, event] : m_committed)
        events.push_back(event);
    return events;
}

int MemoryEventStore::writeCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_writeCount;
}

AuthorizationStatus MemoryEventStore::authorizationStatusForEntityType(EntityType) const
{
    const std::lock_guard lock(m_mutex);
    return m_status;
}

void MemoryEventStore::requestAccessToEntityType(EntityType, const Completion& completion)
{
    bool granted = false;
    {
        const std::lock_guard lock(m_mutex);
        m_status = m_grantsRequests ? AuthorizationStatus::Authorized : AuthorizationStatus::Denied;
        granted = m_grantsRequests;
    }
    completion(granted, std::nullopt);
}

void MemoryEventStore::reset()
{
    const std::lock_guard lock(m_mutex);
    if (!m_waiting.empty())
        m_events = m_committed;
    m_waiting.clear();
}

void MemoryEventStore::refreshSourcesIfNecessary() {}

std::vector<Calendar> MemoryEventStore::calendarsForEntityType(EntityType)
{
    const std::lock_guard lock(m_mutex);
    return m_calendars;
}

std::optional<Calendar> MemoryEventStore::findCalendar(const QString& identifier) const
{
    const auto found = std::find_if(m_calendars.begin(), m_calendars.end(), [&](const Calendar& calendar) {
        return calendar.calendarIdentifier == identifier;
    });
    return found == m_calendars.end() ? std::nullopt : std::optional(*found);
}

std::optional<Calendar> MemoryEventStore::calendarWithIdentifier(const QString& identifier)
{
    const std::lock_guard lock(m_mutex);
    return findCalendar(identifier);
}

std::optional<Calendar> MemoryEventStore::defaultCalendarForNewEvents()
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_calendars.begin(), m_calendars.end(),
                                    [](const Calendar& calendar) { return calendar.allowsContentModifications; });
    return found == m_calendars.end() ? std::nullopt : std::optional(*found);
}

std::vector<Event> MemoryEventStore::eventsMatchingPredicate(const EventPredicate& predicate)
{
    const std::lock_guard lock(m_mutex);
    for (const Calendar& calendar : predicate.calendars) {
        if (m_unreadable || !findCalendar(calendar.calendarIdentifier))
            throw EventStoreException(QStringLiteral("CalendarUnavailable"), QStringLiteral("it can't be read"));
    }
    std::vector<Event> events;
    for (const auto& [identifier, event] : m_events) {
        if (predicate.touches(event.startDate, event.endDate) &&
            std::find(predicate.calendars.begin(), predicate.calendars.end(), event.calendar) !=
                predicate.calendars.end())
            events.push_back(event);
    }
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tie(a.startDate, a.eventIdentifier) < std::tie(b.startDate, b.eventIdentifier);
    });
    return events;
}

std::optional<Event> MemoryEventStore::eventWithIdentifier(const QString& identifier)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_events.find(identifier);
    return found == m_events.end() ? std::nullopt : std::optional(found->second);
}

std::optional<EventStoreError> MemoryEventStore::refusal(const Event& event) const
{
    if (m_failure)
        return m_failure;
    const auto calendar = findCalendar(event.calendar.calendarIdentifier);
    if (!calendar || !calendar->allowsContentModifications)
        return EventStoreError{QStringLiteral("the calendar can't be written")};
    if (!event.eventIdentifier.isEmpty() && !m_events.contains(event.eventIdentifier))
        return EventStoreError{QStringLiteral("the event is gone")};
    return std::nullopt;
}

std::optional<EventStoreError> MemoryEventStore::saveEvent(Event& event, EventSpan, bool commit)
{
    const std::lock_guard lock(m_mutex);
    if (auto error = refusal(event))
        return error;
    if (event.endDate < event.startDate)
        return EventStoreError{QStringLiteral("the event ends before it starts")};
    if (event.eventIdentifier.isEmpty())
        event.eventIdentifier = QStringLiteral("event-%1").arg(++m_lastIdentifier, 6, 10, QLatin1Char('0'));
    m_events.insert_or_assign(event.eventIdentifier, event);
    m_waiting.push_back(event.eventIdentifier);
    return commit ? write() : std::nullopt;
}

std::optional<EventStoreError> MemoryEventStore::removeEvent(const Event& event, EventSpan, bool commit)
{
    const std::lock_guard lock(m_mutex);
    if (event.eventIdentifier.isEmpty())
        return EventStoreError{QStringLiteral("the event was never saved")};
    if (auto error = refusal(event))
        return error;
    m_events.erase(event.eventIdentifier);
    m_waiting.push_back(event.eventIdentifier);
    return commit ? write() : std::nullopt;
}

std::optional<EventStoreError> MemoryEventStore::commit()
{
    const std::lock_guard lock(m_mutex);
    return write();
}

std::optional<EventStoreError> MemoryEventStore::write()
{
    if (!m_waiting.empty() && m_failure)
        return m_failure;
    for (const QString& identifier : m_waiting) {
        const auto event = m_events.find(identifier);
        if (event != m_events.end())
            m_committed.insert_or_assign(identifier, event->second);
        else
            m_committed.erase(identifier);
    }
    m_writeCount += static_cast<int>(m_waiting.size());
    m_waiting.clear();
    return std::nullopt;
}

} // namespace vidora
