// Synchronises favourites with the listings and the calendar: 300 favourites, 20,000 coming broadcasts, and the 2,000
// events of the tenth of them that have an alarm, and 2 and 4 times as much. "per item" is the time for one of all
// these; it stays where the time grows with their sum.
#include "alarms/CalendarSynchronisation.h"
#include "calendar/FolderEventStore.h"
#include "calendar/ICalendarEvent.h"
#include "calendar/MemoryEventStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <memory>

namespace {

using namespace vidora;

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");
const QString scheme = QStringLiteral("vidora");
const Calendar home{QStringLiteral("vidora"), QStringLiteral("Vidora"), QStringLiteral("This device"), std::nullopt,
                    true};
constexpr std::size_t broadcastsToAnEvent = 10;

QString titleOf(std::size_t number)
{
    return QStringLiteral("Title %1").arg(number);
}

/// One channel whose list is always fresh, and a life without events.
struct Surroundings : AlarmChannels, AlarmScreens, ApplicationLife
{
    bool anyIsSelected() const override { return true; }
    std::optional<QString> titleOfChannel(const ObjectId&) const override { return QStringLiteral("One"); }
    std::optional<ObjectId> channelWithTitle(const QString&) const override { return ObjectId(); }
    bool isFresh(const ObjectId&) const override { return true; }
    void favoritesUpdated() override {}
    void notificationsSynched() override {}
    void updateBadge() override {}
    bool isInBackground() const override { return false; }
    void synchronizeSettings() override {}
    Task beginBackgroundTask(std::function<void()>) override { return 0; }
    void endBackgroundTask(Task) override {}
};

struct Input
{
    explicit Input(std::size_t size)
        : favorites(300 * size)
        , broadcasts(20'000 * size)
        , events(2'000 * size)
    {
        auto list = std::make_shared<ShowList>();
        auto byURL = std::make_shared<ShowsByURL>();
        for (std::size_t i = 0; i < broadcasts; ++i) {
            ShowDraft draft;
            draft.entry->setIdentificator(titleOf(i % favorites));
            draft.entry->setDateTime(now + std::chrono::minutes(1 + i / size));
            draft.entry->setEndDateTime(now + std::chrono::minutes(2 + i / size));
            list->push_back(std::move(draft).publish());
            byURL->emplace(*list->back()->entry->urlDigestWithScheme(scheme), list->back());
        }
        schedule = {std::move(list), std::move(byURL)};
        for (std::size_t i = 0; i < favorites; ++i)
            titles.push_back(std::make_shared<const Favorite>(titleOf(i), i % broadcastsToAnEvent == 0 ? 10 : -1, now));
        shows.setFavorites(titles);
    }

    /// The events of all broadcasts with an alarm; each third where its broadcast was before it moved, if they are to.
    std::vector<Event> calendarEvents(bool theyMove) const
    {
        std::vector<Event> result;
        for (std::size_t i = 0; i < events; ++i) {
            const TVEntry& entry = *(*schedule.shows)[i * broadcastsToAnEvent]->entry;
            const Instant start = *entry.dateTime() + std::chrono::minutes(theyMove && i % 3 == 0 ? 30 : 0);
            const auto url = TVEntry::urlDigestFromChannel(entry.channel(), start, entry.identificator(), scheme);
            result.push_back(eventForBroadcast(home, {}, *entry.title(), QStringLiteral("One"), url, start,
                                               start + std::chrono::minutes(1), 10));
        }
        return result;
    }
    void fillMemory(bool theyMove)
    {
        calendars = std::make_unique<MemoryEventStore>(std::vector<Calendar>{home});
        for (Event& event : calendarEvents(theyMove))
            calendars->saveEvent(event, EventSpan::ThisEvent, false);
        calendars->commit();
    }
    /// As another run of the program left them.
    void fillFolder()
    {
        std::size_t number = 0;
        QDir(folder.path()).mkpath(QStringLiteral("calendars/vidora"));
        for (const Event& event : calendarEvents(false)) {
            QFile file(folder.filePath(QStringLiteral("calendars/vidora/%1.ics").arg(++number)));
            if (file.open(QIODevice::WriteOnly))
                file.write(ICalendarEvent::write(QString::number(number), event, now));
        }
    }
    void openFolder()
    {
        calendars = std::make_unique<FolderEventStore>(folder.filePath(QStringLiteral("calendars")), home.source, clock,
                                                       random);
    }

    std::size_t synchronise()
    {
        const AlarmSurroundings all{clock,    shows,     alarms,   silentHours, counters, *calendars,
                                    defaults, keyValues, services, services,    services, scheme};
        CalendarSynchronisation work(all, home);
        const auto kept = work.cleanUp(calendars->eventsMatchingPredicate(
            calendars->predicateForEventsWithStartDate(now - calendarWindow, now + calendarWindow, {home})));
        work.index(kept, now);
        const auto reconciled = work.reconcile(schedule, now, now + calendarWindow);
        work.createMissing(schedule, titles, reconciled.events, now);
        return kept.size();
    }

    const std::size_t favorites, broadcasts, events;
    QTemporaryDir folder;
    FixedClock clock{now};
    KeyValueStore keyValues{folder.filePath(QStringLiteral("cloud.sqlite"))};
    UserDefaults defaults{folder.filePath(QStringLiteral("settings.json"))};
    TVShows shows{folder.path(), keyValues, TVShows::Access::Read};
    Alarms alarms{folder.path(), true};
    SilentHours silentHours{keyValues};
    ShowCounters counters{nullptr};
    Surroundings services;
    SystemRandom random;
    std::unique_ptr<EventStore> calendars;
    FavoriteSchedule schedule;
    Favorites titles;
};

/// `prepare` makes the calendar ready for a synchronisation, ahead of the first or of each.
template<typename Prepare>
void synchronise(benchmark::State& state, bool isPreparedEachTime, Prepare prepare)
{
    Input input(std::size_t(state.range(0)));
    prepare(input);
    for (auto _ : state) {
        if (isPreparedEachTime) {
            state.PauseTiming();
            prepare(input);
            state.ResumeTiming();
        }
        if (input.synchronise() != input.events)
            state.SkipWithError("the calendar lacks events");
    }
    state.counters["per item"] =
        benchmark::Counter(double(input.favorites + input.broadcasts + input.events),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void aThirdMoves(benchmark::State& state)
{
    synchronise(state, true, [](Input& input) { input.fillMemory(true); });
}
void nothingToChange(benchmark::State& state)
{
    synchronise(state, false, [](Input& input) { input.fillMemory(false); });
}
/// Files that were read before are only looked at.
void nothingToChangeInFiles(benchmark::State& state)
{
    synchronise(state, false, [](Input& input) {
        input.fillFolder();
        input.openFolder();
        input.synchronise();
    });
}
/// All files are read.
void firstTimeOfARun(benchmark::State& state)
{
    bool filled = false;
    synchronise(state, true, [&](Input& input) {
        if (!std::exchange(filled, true))
            input.fillFolder();
        input.openFolder();
    });
}

BENCHMARK(aThirdMoves)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(nothingToChange)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(nothingToChangeInFiles)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(firstTimeOfARun)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

} // namespace
