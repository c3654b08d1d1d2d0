#pragma once

#include "calendar/EventStore.h"

#include <map>
#include <mutex>

namespace vidora {

/// Calendars that live in memory, for tests and for `--clock` trials that must not touch the user's own. "Durable" ends
/// with the object here; apart from that it keeps the whole contract.
class MemoryEventStore final : public EventStore
{
public:
    explicit MemoryEventStore(std::vector<Calendar> calendars = {},
                              AuthorizationStatus status = AuthorizationStatus::Authorized);

    /// What `requestAccessToEntityType` grants from now on.
    void setAuthorizationStatus(AuthorizationStatus status, bool grantsRequests);
    void setCalendars(std::vector<Calendar> calendars);
    /// The error of all saves, removes and commits from now on; nothing for none.
    void setFailure(std::optional<EventStoreError> failure);
    /// Whether reads throw from now on.
    void setUnreadable(bool unreadable);
    /// What has been committed: what another program sees.
    std::vector<Event> committedEvents() const;
    /// How many events all commits together wrote or removed.
    int writeCount() const;

    AuthorizationStatus authorizationStatusForEntityType(EntityType type) const override;
    void requestAccessToEntityType(EntityType type, const Completion& completion) override;
    void reset() override;
    void refreshSourcesIfNecessary() override;
    std::vector<Calendar> calendarsForEntityType(EntityType type) override;
    std::optional<Calendar> calendarWithIdentifier(const QString& identifier) override;
    std::optional<Calendar> defaultCalendarForNewEvents() override;
    std::vector<Event> eventsMatchingPredicate(const EventPredicate& predicate) override;
    std::optional<Event> eventWithIdentifier(const QString& identifier) override;
    using EventStore::saveEvent;
    std::optional<EventStoreError> saveEvent(Event& event, EventSpan span, bool commit) override;
    std::optional<EventStoreError> removeEvent(const Event& event, EventSpan span, bool commit) override;
    std::optional<EventStoreError> commit() override;

private:
    std::optional<Calendar> findCalendar(const QString& identifier) const;
    std::optional<EventStoreError> refusal(const Event& event) const;
    std::optional<EventStoreError> write();

    mutable std::mutex m_mutex;
    std::vector<Calendar> m_calendars;
    AuthorizationStatus m_status;
    bool m_grantsRequests = true;
    bool m_unreadable = false;
    std::optional<EventStoreError> m_failure;
    std::map<QString, Event> m_committed;
    std::map<QString, Event> m_events; ///< with the changes that wait for `commit`
    std::vector<QString> m_waiting;    ///< the identifiers of those
    int m_writeCount = 0;
    int m_lastIdentifier = 0;
};

} // namespace vidora
