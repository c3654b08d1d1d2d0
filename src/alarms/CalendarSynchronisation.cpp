#include "alarms/CalendarSynchronisation.h"

#include "platform/Log.h"

#include <algorithm>

namespace vidora {

namespace {

/// A broadcast that starts within this time of another is taken for the same one, moved.
constexpr Seconds furthestMove{14'400};

struct EventPlace
{
    Instant startDate;
    QString lowercasedTitle;
    QString location;

    friend bool operator==(const EventPlace&, const EventPlace&) = default;
};

struct EventPlaceHash
{
    std::size_t operator()(const EventPlace& place) const
    {
        return qHashMulti(0, unixMilliseconds(place.startDate), place.lowercasedTitle, place.location);
    }
};

EventPlace placeOf(const Event& event)
{
    return {event.startDate, event.title.toLower(), event.location};
}

bool startsEarlier(const Show& show, Instant moment)
{
    return show->entry->dateTime().value_or(Instant::min()) < moment;
}

} // namespace

bool isOurs(const Event& event, const QString& scheme)
{
    return event.url && !scheme.isEmpty() && event.url->scheme() == scheme;
}

bool isOwn(const Event& event, const AlarmSurroundings& surroundings)
{
    return isOurs(event, surroundings.scheme) && (event.device.isEmpty() || event.device == surroundings.deviceMark);
}

Event eventForBroadcast(const Calendar& calendar, const QString& deviceMark, const QString& title,
                        const QString& channelTitle, std::optional<URL> url, Instant start, std::optional<Instant> end,
                        int minutes)
{
    Event event;
    event.device = deviceMark;
    event.title = title;
    event.location = channelTitle;
    event.url = std::move(url);
    event.startDate = start;
    event.endDate = end.value_or(start);
    event.calendar = calendar;
    event.alarms = {EventAlarm::alarmWithRelativeOffset(Seconds{minutes * -60LL})};
    return event;
}

void logPredicateException(const EventStoreException& exception, const std::optional<Calendar>& calendar)
{
    Log::line(QStringLiteral("predicate exception name=%1 reason=%2 calendar=%3")
                  .arg(exception.name, exception.reason, calendar ? calendar->title : QString()));
}

CalendarSynchronisation::CalendarSynchronisation(const AlarmSurroundings& surroundings, Calendar calendar)
    : m_surroundings(surroundings)
    , m_calendar(std::move(calendar))
    , m_silentPeriod(surroundings.silentHours.period())
{
}

bool CalendarSynchronisation::removeEvent(const Event& event, const char* failure)
{
    const auto error = m_surroundings.eventStore.removeEvent(event, EventSpan::ThisEvent, false);
    if (error)
        Log::line(QLatin1String(failure) + QLatin1Char(' ') + error->localizedDescription);
    return !error;
}

void CalendarSynchronisation::commit()
{
    if (const auto error = m_surroundings.eventStore.commit())
        Log::line(QStringLiteral("commit error %1").arg(error->localizedDescription));
}

std::vector<Event> CalendarSynchronisation::cleanUp(const std::vector<Event>& events)
{
    std::vector<Event> kept;
    std::unordered_set<EventPlace, EventPlaceHash> places;
    std::unordered_multimap<EventPlace, const Event*, EventPlaceHash> others;
    for (const Event& event : events) {
        if (isOurs(event, m_surroundings.scheme) && !isOwn(event, m_surroundings) && event.hasAlarms())
            others.emplace(placeOf(event), &event);
    }
    // Two devices may make the same event at the same time. Each removes none but its own. An event of a favourite's
    // alarm may ring at another time than the other's, since one of them could not be changed; one is enough all the
    // same.
    const auto isAnothersToo = [&](const Event& event) {
        const bool isOfFavorite = m_surroundings.shows.scheduleTimeForFavoriteNamed(event.title).value_or(-1) >= 0;
        const auto [first, last] = others.equal_range(placeOf(event));
        return std::any_of(first, last, [&](const auto& other) {
            return other.second->device < m_surroundings.deviceMark && event.device == m_surroundings.deviceMark &&
                   (isOfFavorite || other.second->tellingAlarm() == event.tellingAlarm());
        });
    };
    bool duplicateFound = false;
    for (const Event& event : events) {
        if (!isOurs(event, m_surroundings.scheme))
            continue;
        if (!isOwn(event, m_surroundings)) {
            kept.push_back(event);
        } else if (event.location.isEmpty() || !event.hasAlarms()) {
            removeEvent(event, "removeEvent for an invalid event failed with error");
        } else if (!places.insert(placeOf(event)).second || isAnothersToo(event)) {
            duplicateFound = true;
            removeEvent(event, "removeEvent for a duplicate failed with error");
        } else {
            kept.push_back(event);
        }
    }
    if (duplicateFound)
        commit();
    return kept;
}

CalendarEvents CalendarSynchronisation::index(const std::vector<Event>& events, Instant now) const
{
    CalendarEvents index;
    for (const Event& event : events) {
        if (!event.hasAlarms() || event.startDate <= now)
            continue;
        if (isOwn(event, m_surroundings))
            index.add(event, m_surroundings.scheme);
        else
            index.addOfOther(event, m_surroundings.scheme);
    }
    return index;
}

CalendarSynchronisation::ShowsByTitle CalendarSynchronisation::byTitle(const ShowList& shows)
{
    ShowsByTitle result;
    for (const Show& show : shows) {
        if (show->entry->lowercasedIdentificator())
            result[*show->entry->lowercasedIdentificator()].push_back(show);
    }
    return result;
}

CalendarSynchronisation::Operation CalendarSynchronisation::judge(Event& event, const FavoriteSchedule& schedule,
                                                                  const ShowsByTitle& byTitle) const
{
    // With no broadcast in memory nothing is known to have vanished.
    if (schedule.byURL->empty() || schedule.byURL->contains(*event.url))
        return Operation::Keep;
    const auto ofTitle = byTitle.find(event.title.toLower());
    if (ofTitle == byTitle.end())
        return Operation::Remove;

    const ShowList& shows = ofTitle->second;
    Show best;
    Milliseconds nearest = furthestMove;
    auto show = std::lower_bound(shows.begin(), shows.end(), event.startDate - furthestMove, startsEarlier);
    for (; show != shows.end() && startsEarlier(*show, event.startDate + furthestMove); ++show) {
        const Instant start = *(*show)->entry->dateTime();
        if (start == event.startDate && (*show)->entry->title() == event.location)
            return Operation::Remove;
        const Milliseconds distance = std::chrono::abs(start - event.startDate);
        if (distance < nearest) {
            nearest = distance;
            best = *show;
        }
    }
    if (!best)
        return Operation::Remove;
    event.startDate = *best->entry->dateTime();
    event.endDate = best->entry->endDateTime().value_or(event.startDate);
    event.location = m_surroundings.channels.titleOfChannel(best->entry->channel()).value_or(QString());
    event.url = best->entry->urlDigestWithScheme(m_surroundings.scheme);
    return Operation::Update;
}

bool CalendarSynchronisation::isDoneWith(const Event& event, Instant now, QStringList& removed)
{
    if (!event.hasAlarms()) {
        if (event.startDate > now)
            removeEvent(event, "removeEvent error");
        removed << event.eventIdentifier;
        return true;
    }
    if (m_silentPeriod.mayBeAlarmedAt(event.startDate + event.alarms.front().relativeOffset))
        return false;
    // One that belongs to no favourite's alarm was set by hand, and may ring at night.
    if (m_surroundings.shows.scheduleTimeForFavoriteNamed(event.title).value_or(-1) >= 0 && removeCalendarEvent(event))
        removed << event.eventIdentifier;
    return true;
}

CalendarSynchronisation::Reconciled CalendarSynchronisation::reconcile(const FavoriteSchedule& schedule, Instant now,
                                                                       Instant windowEnd)
{
    EventStore& store = m_surroundings.eventStore;
    const EventPredicate future = store.predicateForEventsWithStartDate(now, windowEnd, {m_calendar});
    const ShowsByTitle showsByTitle = byTitle(*schedule.shows);
    Reconciled result;
    std::vector<std::pair<Event, Operation>> operations;
    store.enumerateEventsMatchingPredicate(future, [&](const Event& found, bool&) {
        if (!isOwn(found, m_surroundings) || isDoneWith(found, now, result.removed))
            return;
        Event event = found;
        const Operation operation = judge(event, schedule, showsByTitle);
        operations.emplace_back(std::move(event), operation);
    });
    for (auto& [event, operation] : operations) {
        if (operation == Operation::Remove && removeCalendarEvent(event))
            result.removed << event.eventIdentifier;
        else if (operation == Operation::Update)
            store.saveEvent(event, EventSpan::ThisEvent, false);
    }
    commit();
    result.events = store.eventsMatchingPredicate(future);
    return result;
}

bool CalendarSynchronisation::removeCalendarEvent(const Event& event)
{
    const auto channel = m_surroundings.channels.channelWithTitle(event.location);
    if (!channel || !m_surroundings.channels.isFresh(*channel))
        return false;
    if (event.startDate > m_surroundings.clock.now())
        removeEvent(event, "removeEvent error");
    return true;
}

void CalendarSynchronisation::createMissing(const FavoriteSchedule& schedule, const Favorites& favorites,
                                            const std::vector<Event>& events, Instant now)
{
    std::unordered_set<URL> present;
    for (const Event& event : events) {
        if (event.url && event.hasAlarms())
            present.insert(*event.url);
    }
    const ShowsByTitle showsByTitle = byTitle(*schedule.shows);
    for (const auto& favorite : favorites) {
        const auto ofTitle = showsByTitle.find(favorite->lowercasedIdentificator());
        if (favorite->minutes() < 0 || ofTitle == showsByTitle.end())
            continue;
        for (const Show& show : ofTitle->second) {
            const TVEntry& entry = *show->entry;
            const auto url = entry.urlDigestWithScheme(m_surroundings.scheme);
            const Instant start = *entry.dateTime();
            if (start <= now || (url && present.contains(*url)) ||
                !m_silentPeriod.mayBeAlarmedAt(start - Seconds{favorite->minutes() * 60LL}) ||
                (favorite->previouslyShown() && favorite->previouslyShown() != entry.previouslyShown()))
                continue;
            const auto channelTitle = m_surroundings.channels.titleOfChannel(entry.channel());
            if (!channelTitle)
                continue;
            Event event = eventForBroadcast(m_calendar, m_surroundings.deviceMark, *entry.identificator(),
                                            *channelTitle, url, start, entry.endDateTime(), favorite->minutes());
            m_surroundings.eventStore.saveEvent(event, EventSpan::ThisEvent, false);
            if (url)
                present.insert(*url);
        }
    }
    commit();
}

} // namespace vidora
