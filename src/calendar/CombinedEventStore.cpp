#include "calendar/CombinedEventStore.h"

#include <algorithm>
#include <tuple>

namespace vidora {

namespace {

Calendar outward(const QString& key, Calendar calendar)
{
    calendar.calendarIdentifier = CombinedEventStore::identifierOf(key, calendar.calendarIdentifier);
    return calendar;
}

Event outward(const QString& key, Event event)
{
    event.eventIdentifier = CombinedEventStore::identifierOf(key, event.eventIdentifier);
    event.calendar = outward(key, std::move(event.calendar));
    return event;
}

EventStoreError noCalendar()
{
    return {QStringLiteral("the calendar is gone")};
}

} // namespace

QString CombinedEventStore::identifierOf(const QString& key, const QString& identifierInSource)
{
    return key + QLatin1Char('/') + identifierInSource;
}

CombinedEventStore::~CombinedEventStore()
{
    for (const Source& source : sources())
        source.store->setChangeObserver({});
}

void CombinedEventStore::addSource(const QString& key, std::shared_ptr<EventStore> source)
{
    source->setChangeObserver([this] { notifyChanged(); });
    const std::lock_guard lock(m_mutex);
    m_sources.push_back({key, std::move(source)});
}

void CombinedEventStore::removeSource(const QString& key)
{
    for (const Source& source : sources()) {
        if (source.key == key)
            source.store->setChangeObserver({});
    }
    const std::lock_guard lock(m_mutex);
    std::erase_if(m_sources, [&](const Source& source) { return source.key == key; });
}

std::vector<CombinedEventStore::Source> CombinedEventStore::sources() const
{
    const std::lock_guard lock(m_mutex);
    return m_sources;
}

std::optional<CombinedEventStore::Place> CombinedEventStore::placeOf(const QString& identifier) const
{
    const qsizetype slash = identifier.indexOf(QLatin1Char('/'));
    for (const Source& source : sources()) {
        if (slash > 0 && source.key == identifier.left(slash))
            return Place{source, identifier.mid(slash + 1)};
    }
    return std::nullopt;
}

/// Where the calendar of an event is, and the event as its source knows it.
std::optional<CombinedEventStore::Place> CombinedEventStore::placeOf(const Event& event, Event& inSource) const
{
    auto place = placeOf(event.calendar.calendarIdentifier);
    if (!place)
        return std::nullopt;
    inSource = event;
    inSource.calendar.calendarIdentifier = place->identifier;
    if (!event.eventIdentifier.isEmpty()) {
        const auto eventPlace = placeOf(event.eventIdentifier);
        if (!eventPlace || eventPlace->source.key != place->source.key)
            return std::nullopt;
        inSource.eventIdentifier = eventPlace->identifier;
    }
    return place;
}

AuthorizationStatus CombinedEventStore::authorizationStatusForEntityType(EntityType type) const
{
    AuthorizationStatus best = AuthorizationStatus::NotDetermined;
    for (const Source& source : sources())
        best = std::max(best, source.store->authorizationStatusForEntityType(type));
    return best;
}

void CombinedEventStore::requestAccessToEntityType(EntityType type, const Completion& completion)
{
    bool isGranted = false;
    std::optional<EventStoreError> lastError;
    for (const Source& source : sources()) {
        source.store->requestAccessToEntityType(type, [&](bool granted, const auto& error) {
            isGranted = granted;
            lastError = error;
        });
        if (isGranted)
            break;
    }
    completion(isGranted, lastError);
}

void CombinedEventStore::reset()
{
    for (const Source& source : sources())
        source.store->reset();
}

void CombinedEventStore::refreshSourcesIfNecessary()
{
    for (const Source& source : sources())
        source.store->refreshSourcesIfNecessary();
}

std::vector<Calendar> CombinedEventStore::calendarsForEntityType(EntityType type)
{
    std::vector<Calendar> calendars;
    for (const Source& source : sources()) {
        for (Calendar& calendar : source.store->calendarsForEntityType(type))
            calendars.push_back(outward(source.key, std::move(calendar)));
    }
    std::stable_sort(calendars.begin(), calendars.end(),
                     [](const Calendar& a, const Calendar& b) { return a.title < b.title; });
    return calendars;
}

std::optional<Calendar> CombinedEventStore::calendarWithIdentifier(const QString& identifier)
{
    const auto place = placeOf(identifier);
    auto calendar = place ? place->source.store->calendarWithIdentifier(place->identifier) : std::nullopt;
    return calendar ? std::optional(outward(place->source.key, std::move(*calendar))) : std::nullopt;
}

std::optional<Calendar> CombinedEventStore::defaultCalendarForNewEvents()
{
    for (const Source& source : sources()) {
        if (auto calendar = source.store->defaultCalendarForNewEvents())
            return outward(source.key, std::move(*calendar));
    }
    return std::nullopt;
}

std::vector<Event> CombinedEventStore::eventsMatchingPredicate(const EventPredicate& predicate)
{
    std::vector<Event> events;
    for (const Calendar& calendar : predicate.calendars) {
        const auto place = placeOf(calendar.calendarIdentifier);
        if (!place)
            throw EventStoreException(QStringLiteral("CalendarUnavailable"),
                                      QStringLiteral("calendar %1 is gone").arg(calendar.title));
        Calendar inSource = calendar;
        inSource.calendarIdentifier = place->identifier;
        for (Event& event : place->source.store->eventsMatchingPredicate(
                 {predicate.startDate, predicate.endDate, {std::move(inSource)}}))
            events.push_back(outward(place->source.key, std::move(event)));
    }
    std::sort(events.begin(), events.end(), [](const Event& a, const Event& b) {
        return std::tie(a.startDate, a.eventIdentifier) < std::tie(b.startDate, b.eventIdentifier);
    });
    return events;
}

std::optional<Event> CombinedEventStore::eventWithIdentifier(const QString& identifier)
{
    const auto place = placeOf(identifier);
    auto event = place ? place->source.store->eventWithIdentifier(place->identifier) : std::nullopt;
    return event ? std::optional(outward(place->source.key, std::move(*event))) : std::nullopt;
}

std::optional<EventStoreError> CombinedEventStore::saveEvent(Event& event, EventSpan span, bool commit)
{
    Event inSource;
    const auto place = placeOf(event, inSource);
    if (!place)
        return noCalendar();
    if (auto error = place->source.store->saveEvent(inSource, span, false))
        return error;
    const Calendar calendar = event.calendar;
    event = outward(place->source.key, std::move(inSource));
    event.calendar = calendar;
    if (!commit)
        return std::nullopt;
    auto error = this->commit();
    if (auto present = error ? std::nullopt : eventWithIdentifier(event.eventIdentifier))
        event.asRead = present->asRead;
    return error;
}

std::optional<EventStoreError> CombinedEventStore::removeEvent(const Event& event, EventSpan span, bool commit)
{
    Event inSource;
    const auto place = placeOf(event, inSource);
    if (!place)
        return noCalendar();
    auto error = place->source.store->removeEvent(inSource, span, false);
    return error || !commit ? error : this->commit();
}

std::optional<EventStoreError> CombinedEventStore::commit()
{
    std::optional<EventStoreError> first;
    for (const Source& source : sources()) {
        auto error = source.store->commit();
        if (!first)
            first = std::move(error);
    }
    return first;
}

} // namespace vidora
