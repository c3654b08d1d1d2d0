#include "alarms/AlarmEngine.h"

#include "alarms/AlarmMinutes.h"
#include "calendar/EventMerge.h"
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
    if (!m_surroundings.readOnly)
        m_surroundings.eventStore.setChangeObserver([this] { noteCalendarChange(); });
}

AlarmEngine::~AlarmEngine()
{
    m_surroundings.eventStore.setChangeObserver({});
    m_alarmSyncQueue->sync([] {});
}

/// The last synchronisation worked on what the calendar is no longer.
void AlarmEngine::noteCalendarChange()
{
    m_mainBlocks.async([this, activity = begin()] {
        setSynchronized(false);
        syncAlarms();
    });
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

/// An alarm on all broadcasts of a title, on its way to the calendar.
struct AlarmEngine::TitleAlarm
{
    QString title;
    int minutes;
    std::optional<bool> previouslyShown;
    bool replacesAnother; ///< the favourite had an alarm before
    std::uint64_t changes;
    Activity activity;
};

void AlarmEngine::setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown, bool manual)
{
    if (manual)
        m_surroundings.counters.incrementCounterByAmount(3, title);
    if (!mayWrite() || !m_surroundings.shows.favorites())
        return;
    setSynchronized(false);
    const bool replacesAnother = alarmedIdentificatorType(title).has_value();
    const TitleAlarm alarm{title, minutes, previouslyShown, replacesAnother, m_surroundings.alarms.changes(), begin()};
    replaceFavorite(title, minutes, previouslyShown);
    m_listings->favoritesScheduleWithBlock([this, alarm](const SharedShowList& shows) {
        m_mainBlocks.async([this, shows, alarm] { setAlarms(*shows, alarm); });
    });
}

void AlarmEngine::setAlarms(const ShowList& shows, const TitleAlarm& alarm)
{
    const Instant now = m_surroundings.clock.now();
    const SilentPeriod silentPeriod = m_surroundings.silentHours.period();
    std::vector<Wanted> wanted;
    QSet<QString> known;
    for (const Show& show : shows) {
        const TVEntry& entry = *show->entry;
        if (entry.lowercasedIdentificator() != alarm.title.toLower() || !entry.dateTime())
            continue;
        const auto url =
            TVEntry::urlDigestFromChannel(entry.channel(), *entry.dateTime(), alarm.title, m_surroundings.scheme);
        if (url)
            known.insert(url->text());
        const Instant alarmTime = *entry.dateTime() + offsetOf(alarm.minutes);
        const auto channelTitle = m_surroundings.channels.titleOfChannel(entry.channel());
        if ((!alarm.previouslyShown || entry.previouslyShown() == alarm.previouslyShown) && alarmTime > now &&
            silentPeriod.mayBeAlarmedAt(alarmTime) && channelTitle)
            wanted.push_back({alarm.title, *channelTitle, url, *entry.dateTime(), entry.endDateTime()});
    }
    m_alarmSyncQueue->async([this, wanted, known, alarm] {
        if (m_selectedCalendar.calendar())
            guarded([&] { setAlarmsOnQueue(wanted, known, alarm); });
        commitOnQueue();
        m_mainBlocks.async([this, anyWasMade = !wanted.empty(), alarm] {
            if (anyWasMade)
                syncAlarms();
            m_surroundings.alarms.setSynchronizedUnlessChanged(alarm.changes);
            if (m_surroundings.application.isInBackground())
                m_surroundings.application.synchronizeSettings();
        });
    });
}

/// Of an alarm that was set before, what the new one doesn't ask for goes.
void AlarmEngine::setAlarmsOnQueue(const std::vector<Wanted>& wanted, const QSet<QString>& known,
                                   const TitleAlarm& alarm)
{
    const EventsByURL present = comingEvents();
    QSet<QString> set;
    for (const Wanted& broadcast : wanted) {
        saveAlarm(broadcast, present, alarm.minutes, false, false);
        if (broadcast.url)
            set.insert(broadcast.url->text());
    }
    for (const auto& [url, event] : present) {
        if (alarm.replacesAnother && known.contains(url.text()) && !set.contains(url.text()) &&
            isOwn(event, m_surroundings))
            m_surroundings.eventStore.removeEvent(event, EventSpan::ThisEvent, false);
    }
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
    const Wanted wanted{title, *channelTitle,
                        TVEntry::urlDigestFromChannel(onChannel, at, title, m_surroundings.scheme), at, until};
    m_alarmSyncQueue->async([this, wanted, alarmTime, minutes, sync, manual, activity = begin()] {
        if (!m_selectedCalendar.calendar())
            return;
        guarded([&] {
            Event event = eventForBroadcast(*m_selectedCalendar.calendar(), {}, wanted.title, wanted.channelTitle,
                                            wanted.url, wanted.start, wanted.end, minutes);
            if (alarmTime > m_surroundings.clock.now())
                event = saveAlarm(wanted, comingEvents(), minutes, manual, sync);
            if (sync)
                enterEvent(event, activity);
        });
    });
}

AlarmEngine::EventsByURL AlarmEngine::comingEvents()
{
    EventStore& store = m_surroundings.eventStore;
    const Instant now = m_surroundings.clock.now();
    EventsByURL result;
    for (Event& event : store.eventsMatchingPredicate(
             store.predicateForEventsWithStartDate(now, now + calendarWindow, {*m_selectedCalendar.calendar()}))) {
        if (isOurs(event, m_surroundings.scheme))
            result.emplace(*event.url, std::move(event));
    }
    return result;
}

Event AlarmEngine::saveAlarm(const Wanted& wanted, const EventsByURL& present, int minutes, bool manual, bool commit)
{
    Event event = eventForBroadcast(*m_selectedCalendar.calendar(), m_surroundings.deviceMark, wanted.title,
                                    wanted.channelTitle, wanted.url, wanted.start, wanted.end, minutes);
    const auto [first, last] = wanted.url ? present.equal_range(*wanted.url) : std::pair(present.end(), present.end());
    bool isOthersEnough = false;
    for (auto there = first; there != last; ++there) {
        if (isOwn(there->second, m_surroundings)) {
            event = laidOver(event, there->second);
            isOthersEnough = false;
            break;
        }
        // Another device's event rings as well. Who sets an alarm by hand may want another time than that.
        const bool ringsAlike = there->second.hasAlarms() && there->second.startDate == event.startDate &&
                                there->second.tellingAlarm() == event.tellingAlarm();
        isOthersEnough = isOthersEnough || !manual || ringsAlike;
    }
    const auto error =
        isOthersEnough ? std::nullopt : m_surroundings.eventStore.saveEvent(event, EventSpan::ThisEvent, commit);
    if (error)
        Log::line(QStringLiteral("Error saving event: %1").arg(error->localizedDescription));
    // Many events in a row have the same lead time, and each write goes to the disk.
    if (m_surroundings.keyValueStore.objectForKey(lastAlarmMinutesKey) != QCborValue(minutes))
        m_surroundings.keyValueStore.setObject(minutes, lastAlarmMinutesKey);
    return event;
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
                [&](const Event& event) { return isOwn(event, m_surroundings) && fits(event); }, removed);
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
                    return event.startDate == at && event.title == title && url && event.url == url &&
                           isOwn(event, m_surroundings);
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

std::optional<Event> AlarmEngine::alarmedEvent(const TVEntry& entry)
{
    const auto identifier = m_calendarEvents.identifier(entry, m_surroundings.scheme);
    if (!identifier || identifier->isEmpty())
        return std::nullopt;
    std::optional<Event> event;
    m_alarmSyncQueue->sync(
        [&] { guarded([&] { event = m_surroundings.eventStore.eventWithIdentifier(*identifier); }); });
    return event && event->hasAlarms() ? event : std::nullopt;
}

int AlarmEngine::alarmedEntry(const TVEntry& entry)
{
    const auto event = alarmedEvent(entry);
    return event ? minutesOf(event->tellingAlarm()) : -1;
}

std::optional<AlarmEngine::Ring> AlarmEngine::ringOf(const TVEntry& entry)
{
    const auto event = alarmedEvent(entry);
    if (!event)
        return std::nullopt;
    const Seconds offset = event->tellingAlarm().relativeOffset;
    return Ring{event->startDate + offset, -offset};
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
    std::unordered_set<URL> alerted;
    guarded([&] {
        EventStore& store = m_surroundings.eventStore;
        const EventPredicate period = store.predicateForEventsWithStartDate(now, end, {*m_selectedCalendar.calendar()});
        store.enumerateEventsMatchingPredicate(period, [&](const Event& event, bool& stop) {
            if (!event.hasAlarms() || !event.url)
                return;
            const EventAlarm alarm = event.tellingAlarm();
            const auto show = byURL.find(*event.url);
            if (minutesOf(alarm) < 0 || show == byURL.end() ||
                !silentPeriod.mayBeAlarmedAt(event.startDate + alarm.relativeOffset))
                return;
            // An event that was made to repeat, or one of another device's beside our own, is no second show.
            if (alerted.insert(*event.url).second)
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
