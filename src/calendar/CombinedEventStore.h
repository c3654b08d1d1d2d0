#pragma once

#include "calendar/EventStore.h"

#include <mutex>

namespace vidora {

/// The calendars of several sources as one store: those in the folder of this machine, those of accounts on servers.
/// A source that fails costs nothing but its own calendars: the others go on.
///
/// Identifiers of calendars and events are those that the source gives them, behind the key of the source.
class CombinedEventStore final : public EventStore
{
public:
    ~CombinedEventStore() override;
    /// `key`: not empty, without a slash, and no other source's. Sources that come first are the first to be asked for
    /// a calendar for new events.
    void addSource(const QString& key, std::shared_ptr<EventStore> source);
    /// Changes of it that were not committed are lost.
    void removeSource(const QString& key);
    /// The identifier that a calendar or an event of a source has here.
    static QString identifierOf(const QString& key, const QString& identifierInSource);

    AuthorizationStatus authorizationStatusForEntityType(EntityType type) const override;
    /// Of the sources in turn, until one grants it.
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
    /// The first error; each source has been asked.
    std::optional<EventStoreError> commit() override;

private:
    struct Source
    {
        QString key;
        std::shared_ptr<EventStore> store;
    };
    /// A source and an identifier as the source knows it.
    struct Place
    {
        Source source;
        QString identifier;
    };

    std::vector<Source> sources() const;
    std::optional<Place> placeOf(const QString& identifier) const;
    std::optional<Place> placeOf(const Event& event, Event& inSource) const;

    mutable std::mutex m_mutex; ///< of the list alone: sources exclude calls by themselves
    std::vector<Source> m_sources;
};

} // namespace vidora
