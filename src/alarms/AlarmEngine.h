#pragma once

#include "alarms/AlarmSurroundings.h"
#include "alarms/CalendarEvents.h"
#include "alarms/CalendarSynchronisation.h"
#include "alarms/SelectedCalendar.h"
#include "platform/BlockOwner.h"
#include "platform/DispatchQueue.h"
#include "platform/Settings.h"
#include "store/TVListings.h"

#include <mutex>

namespace vidora {

/// Favourites and their alarms: sets and removes events in the user's calendar, which rings them, and keeps the
/// calendar in agreement with favourites and listings. All work on the event store is done by the serial queue
/// "ostrel.tv.alarm.sync".
///
/// Operations return at once, and are for the main thread unless they say otherwise. Without permission to write the
/// calendar, or without one that can be written, they change no event and say nothing; the favourites and the counters
/// follow all the same.
///
/// `manual`: the user acted on this very show. Its counter changes, and silent hours are not looked at. `sync`: the
/// calendar is committed and the screens are told at the end; who makes many changes commits once.
class AlarmEngine final : public FollowedShows
{
public:
    /// What is set on all broadcasts of a title.
    struct Recurrence
    {
        int minutes;
        std::optional<bool> previouslyShown; ///< only repeats, or only what is none; empty: any broadcast
    };

    /// In the key-value store: the lead time of the event that was written last.
    static constexpr QLatin1String lastAlarmMinutesKey{setting::lastAlarmMinutes.key};

    explicit AlarmEngine(AlarmSurroundings surroundings);
    /// On the main thread, after the store of shows is gone. Waits for the work on the calendar.
    ~AlarmEngine() override;

    /// The store that the queries go to, which ends ahead of this object. Set ahead of the first turn of the main loop.
    void setListings(TVListings& listings) { m_listings = &listings; }

    // Favourites.

    /// Drops one blank at the end of the title. A title that is a favourite already, in whatever case, stays as it is.
    void addFavorite(QString title);
    /// Takes the favourite away, and all alarms on its broadcasts.
    void removeFavorite(const QString& title);

    // Alarms.

    /// Sets an alarm on all broadcasts of a favourite, so many minutes ahead. Makes events only where the alarm is
    /// still to come; a title that is no favourite gets none. Alarms that were set on them before become these.
    void setAlarmForTitle(const QString& title, int minutes, std::optional<bool> previouslyShown, bool manual);
    /// Sets an alarm on one broadcast, unless it would have had to sound already. One that it has is changed in place:
    /// what others put on the event stays.
    void setAlarmForTitle(const QString& title, const ObjectId& onChannel, Instant at, std::optional<Instant> until,
                          int minutes, bool sync, bool manual);
    /// Removes the alarms on all coming broadcasts of a title, in whatever case. A favourite stays one.
    void removeAlarmForTitle(const QString& title, bool sync, bool manual);
    /// Removes the alarm on one coming broadcast of exactly this title.
    void removeAlarmForTitle(const QString& title, const ObjectId& onChannel, Instant at, bool sync, bool manual);
    /// Removes all coming events of ours, be there favourites that ask for them or not.
    void removeAllEvents();
    /// Lead time of the broadcast's alarm in minutes, as near as the offered ones come to it; -1 without one. Waits for
    /// the work on the calendar.
    int alarmedEntry(const TVEntry& entry);
    /// When the broadcast's alarm rings, and how long ahead of its event; nothing without one. Waits as the above.
    struct Ring
    {
        Instant moment;
        Seconds lead;
    };
    std::optional<Ring> ringOf(const TVEntry& entry);
    /// What is set on the broadcasts of a favourite; nothing when it has no alarm, or there is none.
    std::optional<Recurrence> alarmedIdentificatorType(const QString& title);
    /// The shows for which an alarm will sound. As the store's compound queries.
    void alertsScheduleWithPriority(QualityOfService priority, TVListings::CompoundBlock mainBlock);

    // The calendar.

    QSet<QString> lowercasedFavoriteNames() const override { return m_surroundings.shows.lowercasedFavoriteNames(); }
    /// Makes the calendar agree with favourites and listings. On any thread. One synchronisation runs at a time, and
    /// one that waits for its turn serves all who ask until it begins.
    void syncAlarms() override;
    void setSynchronized(bool isSynchronized) override { m_surroundings.alarms.setSynchronized(isSynchronized); }
    bool hasEvents() const { return eventCount() > 0; }
    int eventCount() const { return m_calendarEvents.eventCount(); }
    /// The calendar in which alarms are made, chosen if it was not yet. Waits for the work on the calendar.
    std::optional<Calendar> selectedCalendar();
    /// The title of the calendar that held the alarms and is gone, until the user chooses one: alarms are made in the
    /// default calendar meanwhile. Any thread.
    std::optional<QString> lostCalendar() const
    {
        return m_surroundings.defaults.stringForKey(SelectedCalendar::lostKey);
    }
    /// Takes the calendar that the user has chosen. Events stay where they are: only while there are none.
    void saveCalendar(const Calendar& calendar);
    /// Queues a commit of the calendar, for the end of the process and the way into the background.
    void commit();
    /// Whether nothing that was begun is going on.
    bool isIdle() const { return m_activity->isEmpty(); }
    /// Queues the block on the main queue once nothing that was begun is going on.
    void whenIdle(DispatchQueue::Block block) { m_activity->notify(DispatchQueue::main(), std::move(block)); }

private:
    /// Keeps the engine from being idle for as long as one of its owners lives.
    using Activity = std::shared_ptr<void>;
    struct Run;

    Activity begin() const;
    bool isAuthorized() const;
    /// Whether events may be made and removed.
    bool mayWrite() const { return isAuthorized() && !m_surroundings.readOnly; }
    /// Runs work on the calendar that may throw; false when it did.
    bool guarded(const std::function<void()>& work) const;
    /// Replaces the first favourite of a title; false when there is none.
    bool replaceFavorite(const QString& title, int minutes, std::optional<bool> previouslyShown);
    /// A broadcast that gets an alarm.
    struct Wanted
    {
        QString title, channelTitle;
        std::optional<URL> url;
        Instant start;
        std::optional<Instant> end;
    };
    using EventsByURL = std::unordered_multimap<URL, Event>;
    struct TitleAlarm;
    void setAlarms(const ShowList& shows, const TitleAlarm& alarm);
    void setAlarmsOnQueue(const std::vector<Wanted>& wanted, const QSet<QString>& known, const TitleAlarm& alarm);
    /// Our coming events.
    EventsByURL comingEvents();
    /// Saves the event of a broadcast, or changes the one that is there, and remembers its lead time, which is the next
    /// one offered.
    Event saveAlarm(const Wanted& wanted, const EventsByURL& present, int minutes, bool manual, bool commit);
    std::optional<Event> alarmedEvent(const TVEntry& entry);
    void noteCalendarChange();
    /// Enters the event of a broadcast that was just saved into the index, and tells the screens.
    void enterEvent(const Event& saved, const Activity& activity);
    /// Removes our events that begin from now on and fit.
    void removeComingEvents(const std::function<bool(const Event&)>& fits, bool sync);
    /// Removes events of a period that fit; their identifiers, whether or not they could be removed.
    QStringList removeEvents(Instant from, Instant to, const std::function<bool(const Event&)>& fits, bool& removed);
    ShowList alertedShows(const ShowList& shows, const ShowsByURL& byURL);
    void commitOnQueue();

    void requestAccess();
    void ensureSelectedCalendarIsSet();
    /// With the mutex held.
    void queueRun();
    void beginRun();
    void runFirstStages(const std::shared_ptr<Run>& run);
    void runLastStages(const std::shared_ptr<Run>& run, const FavoriteSchedule& schedule);
    void endRun(Run& run);

    const AlarmSurroundings m_surroundings;
    SelectedCalendar m_selectedCalendar; ///< belongs to the queue
    CalendarEvents m_calendarEvents;     ///< belongs to the main thread
    TVListings* m_listings = nullptr;
    /// A synchronisation that has not begun.
    struct AskedRun
    {
        Activity activity;
        bool wasSynchronized; ///< at every question
    };
    std::mutex m_syncMutex;
    std::optional<AskedRun> m_askedRun;
    bool m_isSynchronising = false; ///< one is queued, or has begun and is not over
    const std::shared_ptr<DispatchGroup> m_activity = std::make_shared<DispatchGroup>();
    const std::shared_ptr<DispatchQueue> m_alarmSyncQueue;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
