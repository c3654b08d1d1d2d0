#include "alarms/AlarmEngine.h"

#include "alarms/AlarmMinutes.h"
#include "platform/Log.h"

#include <algorithm>
#include <limits>

namespace vidora {

namespace {

Seconds offsetOf(int minutes)
{
    return Seconds{minutes * -60LL};
}

int minutesOf(const EventAlarm& alarm)
{
    const std::int64_t minutes = normalizedMinutes(static_cast<double>(alarm.relativeOffset.count()) / -60);
    return static_cast<int>(std::min<std::int64_t>(minutes, std::numeric_limits<int>::max()));
}

} // namespace

AlarmEngine::AlarmEngine(AlarmSurroundings surroundings)
    : m_surroundings(std::move(surroundings))
    , m_selectedCalendar(m_surroundings.eventStore, m_surroundings.defaults)
    , m_alarmSyncQueue(DispatchQueue::serial(QStringLiteral("ostrel.tv.alarm.sync")))
{
}

AlarmEngine::~AlarmEngine()
{
    m_alarmSyncQueue->sync([] {});
}

AlarmEngine::Activity AlarmEngine::begin() const
{
    m_activity->enter();
    return Activity(m_activity.get(), [group = m_activity](void*) { group->leave(); });
}

bool AlarmEngine::isAuthorized() const
{
    return m_surroundings.eventStore.authorizationStatusForEntityType(EntityType::Event) ==
           AuthorizationStatus::Authorized;
}

bool AlarmEngine::guarded(const std::function<void()>& work) const
{
    try {
        work();
        return true;
    } catch (const EventStoreException& exception) {
        logPredicateException(exception, m_selectedCalendar.calendar());
        return false;
    }
}

void AlarmEngine::addFavorite(QString title)
{
    if (title.endsWith(QLatin1Char(' ')))
        title.chop(1);
    if (m_surroundings.shows.containsFavoriteNamed(title)) {
        m_surroundings.screens.favoritesUpdated();
        return;
    }
    constexpr int noAlarm = -1;
    Favorites favorites = m_surroundings.shows.favorites().value_or(Favorites());
    favorites.push_back(std::make_shared<const Favorite>(title, noAlarm, m_surroundings.clock.now()));
    m_surroundings.shows.setFavorites(std::move(favorites));
    m_surroundings.screens.favoritesUpdated();
    m_surroundings.counters.favoriteAdded(title);
}

void AlarmEngine::removeFavorite(const QString& title)
{
    if (!m_surroundings.shows.containsFavoriteNamed(title))
        return;
    removeAlarmForTitle(title, true, false);
    Favorites favorites = m_surroundings.shows.favorites().value_or(Favorites());
    const auto found = std::find_if(favorites.begin(), favorites.end(), [&](const auto& favorite) {
        return favorite->lowercasedIdentificator() == title.toLower();
    });
    if (found != favorites.end())
        favorites.erase(found);
    m_surroundings.shows.setFavorites(std::move(favorites));
    removeAlarmForTitle(title, false, false);
    m_mainBlocks.async([this] { m_surroundings.screens.favoritesUpdated(); });
    m_surroundings.counters.favoriteRemoved(title);
}

bool AlarmEngine::replaceFavorite(const QString& title, int minutes, std::optional<bool> previouslyShown)
{
    Favorites favorites = m_surroundings.shows.favorites().value_or(Favorites());
    const auto found = std::find_if(favorites.begin(), favorites.end(), [&](const auto& favorite) {
        return favorite->lowercasedIdentificator() == title.toLower();
    });
    if (found == favorites.end())
        return false;
    *found = std::make_shared<const Favorite>(title, minutes, m_surroundings.clock.now(), previouslyShown);
    m_surroundings.shows.setFavorites(std::move(favorites));
    return true;
}

void AlarmEngine::setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown, bool manual)
{
    if (manual)
        m_surroundings.counters.incrementCounterByAmount(3, title);
    if (!mayWrite() || !m_surroundings.shows.favorites())
        return;
    setSynchronized(false);
    const std::uint64_t changes = m_surroundings.alarms.changes();
    replaceFavorite(title, minutes, previouslyShown);
    m_listings->favoritesScheduleWithBlock(
        [this, title, minutes, previouslyShown, changes, activity = begin()](const SharedShowList& shows) {
            m_mainBlocks.async([=, this] { setAlarms(*shows, title, minutes, previouslyShown, changes, activity); });
        });
}

void AlarmEngine::setAlarms(const ShowList& shows, const QString& title, int minutes,
                            std::optional<bool> previouslyShown, std::uint64_t changes, const Activity& activity)
{
    const Instant now = m_surroundings.clock.now();
    bool anyWasMade = false;
    for (const Show& show : shows) {
        const TVEntry& entry = *show->entry;
        if ((previouslyShown && entry.previouslyShown() != previouslyShown) ||
            entry.lowercasedIdentificator() != title.toLower() || !entry.dateTime() ||
            *entry.dateTime() + offsetOf(minutes) <= now)
            continue;
        setAlarmForTitle(title, entry.channel(), *entry.dateTime(), entry.endDateTime(), minutes, false, false);
        anyWasMade = true;
    }
    m_alarmSyncQueue->async([this, anyWasMade, changes, activity] {
        if (anyWasMade)
            commitOnQueue();
        m_mainBlocks.async([this, anyWasMade, changes, activity] {
            if (anyWasMade)
                syncAlarms();
            m_surroundings.alarms.setSynchronizedUnlessChanged(changes);
            if (m_surroundings.application.isInBackground())
                m_surroundings.application.synchronizeSettings();
        });
    });
}

void AlarmEngine::setAlarmForTitle(const QString& title, const ObjectId& onChannel, Instant at,
                                   std::optional<Instant> until, int minutes, bool sync, bool manual)
{
    const Instant alarmTime = at + offsetOf(minutes);
    if (manual)
        m_surroundings.counters.incrementCounterByAmount(2, title);
    else if (!m_surroundings.silentHours.mayBeAlarmedAt(alarmTime))
        return;
    if (!mayWrite())
        return;
    const auto channelTitle = m_surroundings.channels.titleOfChannel(onChannel);
    if (!channelTitle)
        return;
    m_alarmSyncQueue->async([=, this, activity = begin()] {
        if (!m_selectedCalendar.calendar())
            return;
        Event event = eventForBroadcast(*m_selectedCalendar.calendar(), title, *channelTitle,
                                        TVEntry::urlDigestFromChannel(onChannel, at, title, m_surroundings.scheme), at,
                                        until, minutes);
        guarded([&] {
            if (alarmTime > m_surroundings.clock.now())
                saveAlarm(event, minutes, sync);
            if (sync)
                enterEvent(event, activity);
        });
    });
}

void AlarmEngine::saveAlarm(Event& event, int minutes, bool commit)
{
    if (const auto error = m_surroundings.eventStore.saveEvent(event, EventSpan::ThisEvent, commit))
        Log::line(QStringLiteral("Error saving event: %1").arg(error->localizedDescription));
    // Many events in a row have the same lead time, and each write goes to the disk.
    if (m_surroundings.keyValueStore.objectForKey(lastAlarmMinutesKey) != QCborValue(minutes))
        m_surroundings.keyValueStore.setObject(minutes, lastAlarmMinutesKey);
}

void AlarmEngine::enterEvent(const Event& saved, const Activity& activity)
{
    EventStore& store = m_surroundings.eventStore;
    const EventPredicate period =
        store.predicateForEventsWithStartDate(saved.startDate, saved.endDate, {saved.calendar});
    commitOnQueue();
    m_mainBlocks.async([this, saved, activity, events = store.eventsMatchingPredicate(period)] {
        const auto found = std::find_if(events.begin(), events.end(), [&](const Event& event) {
            return event.startDate == saved.startDate && event.endDate == saved.endDate &&
                   event.location == saved.location && event.hasAlarms();
        });
        if (found != events.end())
            m_calendarEvents.add(*found, m_surroundings.scheme);
        m_surroundings.screens.notificationsSynched();
    });
}

QStringList AlarmEngine::removeEvents(Instant from, Instant to, const std::function<bool(const Event&)>& fits,
                                      bool& removed)
{
    EventStore& store = m_surroundings.eventStore;
    const EventPredicate period = store.predicateForEventsWithStartDate(from, to, {*m_selectedCalendar.calendar()});
    QStringList identifiers;
    store.enumerateEventsMatchingPredicate(period, [&](const Event& event, bool&) {
        if (!fits(event))
            return;
        if (!store.removeEvent(event, EventSpan::ThisEvent, false))
            removed = true;
        identifiers << event.eventIdentifier;
    });
    return identifiers;
}

void AlarmEngine::removeAlarmForTitle(const QString& title, bool sync, bool manual)
{
    if (manual)
        m_surroundings.counters.incrementCounterByAmount(-1, title);
    if (!mayWrite())
        return;
    constexpr int noAlarm = -1;
    replaceFavorite(title, noAlarm, std::nullopt);
    removeComingEvents(
        [lowercased = title.toLower()](const Event& event) { return event.title.toLower() == lowercased; }, sync);
}

void AlarmEngine::removeAllEvents()
{
    if (mayWrite())
        removeComingEvents([](const Event&) { return true; }, true);
}

void AlarmEngine::removeComingEvents(const std::function<bool(const Event&)>& fits, bool sync)
{
    m_alarmSyncQueue->async([this, fits, sync, activity = begin()] {
        if (!m_selectedCalendar.calendar())
            return;
        setSynchronized(false);
        const std::uint64_t changes = m_surroundings.alarms.changes();
        const Instant now = m_surroundings.clock.now();
        bool removed = false;
        QStringList identifiers;
        const bool isWhole = guarded([&] {
            identifiers = removeEvents(
                now, now + calendarWindow,
                [&](const Event& event) { return isOurs(event, m_surroundings.scheme) && fits(event); }, removed);
        });
        if (!isWhole)
            return;
        m_mainBlocks.async([this, identifiers, removed, sync, changes, activity] {
            m_calendarEvents.removeWithIdentifiers(identifiers);
            if (removed && sync) {
                commit();
                if (m_surroundings.application.isInBackground())
                    m_surroundings.application.synchronizeSettings();
                m_surroundings.screens.notificationsSynched();
            }
            m_alarmSyncQueue->async(
                [this, changes, activity] { m_surroundings.alarms.setSynchronizedUnlessChanged(changes); });
        });
    });
}

void AlarmEngine::removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Instant at, bool sync,
                                      bool manual)
{
    if (manual)
        m_surroundings.counters.incrementCounterByAmount(-1, title);
    if (!mayWrite() || at < m_surroundings.clock.now())
        return;
    m_alarmSyncQueue->async([=, this, activity = begin()] {
        if (!m_selectedCalendar.calendar())
            return;
        const auto url = TVEntry::urlDigestFromChannel(onChannel, at, title, m_surroundings.scheme);
        bool removed = false;
        QStringList identifiers;
        const bool isWhole = guarded([&] {
            identifiers = removeEvents(
                at, at + dayStep,
                [&](const Event& event) {
                    return event.startDate == at && event.title == title && url && event.url == url;
                },
                removed);
        });
        if (!isWhole)
            return;
        m_mainBlocks.async([this, identifiers, removed, sync, activity] {
            m_calendarEvents.removeWithIdentifiers(identifiers);
            if (!removed || !sync)
                return;
            m_alarmSyncQueue->async([this, activity] {
                commitOnQueue();
                m_mainBlocks.async([this, activity] { m_surroundings.screens.notificationsSynched(); });
            });
        });
    });
}

int AlarmEngine::alarmedEntry(const TVEntry& entry)
{
    const auto identifier = m_calendarEvents.identifier(entry, m_surroundings.scheme);
    if (!identifier || identifier->isEmpty())
        return -1;
    std::optional<Event> event;
    m_alarmSyncQueue->sync(
        [&] { guarded([&] { event = m_surroundings.eventStore.eventWithIdentifier(*identifier); }); });
    return event && event->hasAlarms() ? minutesOf(tellingAlarm(*event)) : -1;
}

std::optional<AlarmEngine::Recurrence> AlarmEngine::alarmedIdentificatorType(const QString& title)
{
    for (const auto& favorite : m_surroundings.shows.favorites().value_or(Favorites())) {
        if (favorite->lowercasedIdentificator() == title.toLower())
            return favorite->minutes() < 0
                       ? std::nullopt
                       : std::optional(Recurrence{favorite->minutes(), favorite->previouslyShown()});
    }
    return std::nullopt;
}

ShowList AlarmEngine::alertedShows(const ShowList& shows, const ShowsByURL& byURL)
{
    ShowList result;
    if (!m_selectedCalendar.calendar())
        return result;
    constexpr std::size_t maximumShows = 2000;
    const Instant now = m_surroundings.clock.now();
    const Instant end =
        (shows.empty() ? std::nullopt : shows.back()->entry->endDateTime()).value_or(now + calendarWindow);
    const SilentPeriod silentPeriod = m_surroundings.silentHours.period();
    guarded([&] {
        EventStore& store = m_surroundings.eventStore;
        const EventPredicate period = store.predicateForEventsWithStartDate(now, end, {*m_selectedCalendar.calendar()});
        store.enumerateEventsMatchingPredicate(period, [&](const Event& event, bool& stop) {
            if (!event.hasAlarms() || !event.url)
                return;
            const EventAlarm alarm = tellingAlarm(event);
            const auto show = byURL.find(*event.url);
            if (minutesOf(alarm) < 0 || show == byURL.end() ||
                !silentPeriod.mayBeAlarmedAt(event.startDate + alarm.relativeOffset))
                return;
            result.push_back(show->second);
            stop = result.size() == maximumShows;
        });
    });
    std::stable_sort(result.begin(), result.end(),
                     [](const Show& a, const Show& b) { return a->entry->dateTime() < b->entry->dateTime(); });
    return result;
}

void AlarmEngine::alertsScheduleWithPriority(QualityOfService priority, TVListings::CompoundBlock mainBlock)
{
    m_listings->favoritesScheduleWithPartialAllowed(
        true, [this, priority, mainBlock = std::move(mainBlock)](const SharedShowList& shows, const auto& byURL) {
            m_alarmSyncQueue->async([this, priority, mainBlock, shows, byURL] {
                auto alerted = std::make_shared<const ShowList>(alertedShows(*shows, *byURL));
                m_mainBlocks.async([this, priority, mainBlock, alerted = std::move(alerted)] {
                    m_listings->compoundListingsWithShows(alerted, priority, mainBlock);
                });
            });
        });
}

} // namespace vidora
