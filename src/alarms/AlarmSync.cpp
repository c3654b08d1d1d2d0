// The way of one synchronisation over the queues: the calendar's, the main queue, the store's and back.
#include "alarms/AlarmEngine.h"
#include "platform/Log.h"

namespace vidora {

/// One synchronisation.
struct AlarmEngine::Run
{
    Activity activity;
    bool anyChannelIsSelected;
    std::optional<Favorites> favorites;
    bool wasSynchronized;
    std::uint64_t changes;
    Instant windowStart, windowEnd;
    std::optional<ApplicationLife::Task> alarmSyncTask;
    Activity over = {}; ///< goes with the last block that works for this one
};

void AlarmEngine::requestAccess()
{
    if (m_surroundings.readOnly)
        return;
    m_surroundings.eventStore.requestAccessToEntityType(EntityType::Event,
                                                        [this](bool granted, const std::optional<EventStoreError>&) {
                                                            if (granted && isAuthorized())
                                                                m_mainBlocks.async([this] { syncAlarms(); });
                                                            else
                                                                setSynchronized(true); // nothing is left to be done
                                                        });
}

void AlarmEngine::syncAlarms()
{
    if (!isAuthorized()) {
        requestAccess();
        return;
    }
    const std::lock_guard lock(m_syncMutex);
    if (!m_askedRun)
        m_askedRun = AskedRun{begin(), true};
    m_askedRun->wasSynchronized &= m_surroundings.alarms.synchronized();
    if (!m_isSynchronising)
        queueRun();
}

void AlarmEngine::queueRun()
{
    m_isSynchronising = true;
    m_alarmSyncQueue->async([this] { beginRun(); });
}

void AlarmEngine::beginRun()
{
    std::optional<AskedRun> asked;
    {
        const std::lock_guard lock(m_syncMutex);
        asked = std::exchange(m_askedRun, std::nullopt);
    }
    auto run = std::make_shared<Run>(Run{std::move(asked->activity),
                                         m_surroundings.channels.anyIsSelected(),
                                         m_surroundings.shows.favorites(),
                                         asked->wasSynchronized,
                                         m_surroundings.alarms.changes(),
                                         {},
                                         {},
                                         std::nullopt});
    run->over = Activity(nullptr, [next = m_mainBlocks.guarded([this] {
                             const std::lock_guard lock(m_syncMutex);
                             m_isSynchronising = false;
                             if (m_askedRun)
                                 queueRun();
                         })](void*) { DispatchQueue::main().async(next); });
    runFirstStages(run);
}

void AlarmEngine::ensureSelectedCalendarIsSet()
{
    guarded([this] {
        const auto memory = m_selectedCalendar.ensureSelectedCalendarIsSet();
        if (memory && !m_surroundings.readOnly)
            m_mainBlocks.async([this, memory] { SelectedCalendar::remember(*memory, m_surroundings.defaults); });
    });
}

void AlarmEngine::runFirstStages(const std::shared_ptr<Run>& run)
{
    ensureSelectedCalendarIsSet();
    if (!run->anyChannelIsSelected || !run->favorites || run->favorites->empty()) {
        commitOnQueue(); // what waits for a server goes out all the same
        return;
    }
    if (!m_surroundings.readOnly) {
        run->alarmSyncTask = m_surroundings.application.beginBackgroundTask({});
        Favorites unique;
        std::unordered_set<const Favorite*> seen;
        std::copy_if(run->favorites->begin(), run->favorites->end(), std::back_inserter(unique),
                     [&](const auto& favorite) { return seen.insert(favorite.get()).second; });
        if (unique != *run->favorites)
            m_surroundings.shows.setFavorites(std::move(unique));
    }
    const Instant now = m_surroundings.clock.now();
    run->windowStart = now - calendarWindow;
    run->windowEnd = now + calendarWindow;
    guarded([&] {
        EventStore& store = m_surroundings.eventStore;
        store.refreshSourcesIfNecessary();
        if (!m_selectedCalendar.calendar())
            return;
        CalendarSynchronisation work(m_surroundings, *m_selectedCalendar.calendar());
        commitOnQueue();
        std::vector<Event> events = store.eventsMatchingPredicate(
            store.predicateForEventsWithStartDate(run->windowStart, run->windowEnd, {*m_selectedCalendar.calendar()}));
        if (events.empty())
            return;
        if (!m_surroundings.readOnly)
            events = work.cleanUp(events);
        m_mainBlocks.async([this, index = work.index(events, now)] { m_calendarEvents = index; });
    });
    if (run->wasSynchronized || m_surroundings.readOnly) {
        m_mainBlocks.async([this, run] { endRun(*run); });
        return;
    }
    m_mainBlocks.async([this, run] {
        m_listings->favoritesScheduleWithPartialAllowed(
            false, [this, run](const SharedShowList& shows, const std::shared_ptr<const ShowsByURL>& byURL) {
                m_alarmSyncQueue->async([this, run, shows, byURL] { runLastStages(run, {shows, byURL}); });
            });
    });
}

void AlarmEngine::runLastStages(const std::shared_ptr<Run>& run, const FavoriteSchedule& schedule)
{
    const Instant now = m_surroundings.clock.now();
    EventStore& store = m_surroundings.eventStore;
    const std::optional<Calendar>& calendar = m_selectedCalendar.calendar();
    if (!calendar) {
        m_mainBlocks.async([this, run] { endRun(*run); });
        return;
    }
    guarded([&] {
        CalendarSynchronisation work(m_surroundings, *calendar);
        auto reconciled = work.reconcile(schedule, now, run->windowEnd);
        m_mainBlocks.async([this, run, schedule, now, reconciled = std::move(reconciled), calendar = *calendar] {
            m_calendarEvents.removeWithIdentifiers(reconciled.removed);
            m_alarmSyncQueue->async([this, run, schedule, now, events = reconciled.events, calendar,
                                     favorites = m_surroundings.shows.favorites().value_or(Favorites())] {
                guarded([&] {
                    CalendarSynchronisation(m_surroundings, calendar).createMissing(schedule, favorites, events, now);
                });
            });
        });
    });
    std::optional<CalendarEvents> index;
    guarded([&] {
        commitOnQueue();
        index = CalendarSynchronisation(m_surroundings, *calendar)
                    .index(store.eventsMatchingPredicate(
                               store.predicateForEventsWithStartDate(run->windowStart, run->windowEnd, {*calendar})),
                           now);
    });
    m_mainBlocks.async([this, run, index = std::move(index)] {
        if (index) {
            m_calendarEvents = *index;
            m_surroundings.alarms.setSynchronizedUnlessChanged(run->changes);
            if (m_surroundings.application.isInBackground())
                m_surroundings.application.synchronizeSettings();
        }
        endRun(*run);
    });
}

void AlarmEngine::endRun(Run& run)
{
    if (run.alarmSyncTask)
        m_surroundings.application.endBackgroundTask(*run.alarmSyncTask);
    m_surroundings.screens.notificationsSynched();
}

void AlarmEngine::commitOnQueue()
{
    if (m_surroundings.readOnly)
        return;
    guarded([this] {
        if (const auto error = m_surroundings.eventStore.commit())
            Log::line(QStringLiteral("commit error %1").arg(error->localizedDescription));
    });
}

void AlarmEngine::commit()
{
    m_alarmSyncQueue->async([this, activity = begin()] { commitOnQueue(); });
}

std::optional<Calendar> AlarmEngine::selectedCalendar()
{
    std::optional<Calendar> calendar;
    m_alarmSyncQueue->sync([&] {
        ensureSelectedCalendarIsSet();
        calendar = m_selectedCalendar.calendar();
    });
    return calendar;
}

void AlarmEngine::saveCalendar(const Calendar& calendar)
{
    m_alarmSyncQueue->async([this, calendar, activity = begin()] {
        if (m_selectedCalendar.calendar() == calendar)
            return;
        m_selectedCalendar.setCalendar(calendar);
        m_mainBlocks.async([this, memory = SelectedCalendar::memoryOf(calendar), activity] {
            SelectedCalendar::remember(memory, m_surroundings.defaults);
            m_surroundings.defaults.removeObjectForKey(SelectedCalendar::lostKey);
            m_surroundings.keyValueStore.setObject(memory.looks, SelectedCalendar::key);
            m_surroundings.screens.updateBadge();
        });
    });
}

} // namespace vidora
