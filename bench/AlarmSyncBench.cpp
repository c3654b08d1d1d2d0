// Synchronises favourites with the listings and the calendar: 300 favourites with an alarm, 20,000 coming broadcasts
// and 2,000 events of ours, and 2 and 4 times as much. "ns/item" is the time for one of all these; it stays where the
// time grows with their sum.
#include "alarms/CalendarSynchronisation.h"
#include "platform/MemoryEventStore.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <optional>

namespace {

using namespace vidora;

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");
const QString scheme = QStringLiteral("vidora");
const Calendar home{QStringLiteral("home"), QStringLiteral("Home"), QStringLiteral("This device"), std::nullopt, true};

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
            titles.push_back(std::make_shared<const Favorite>(titleOf(i), 10, now));
        shows.setFavorites(titles);
        fill();
    }

    /// Events of a tenth of the broadcasts, each third of them where its broadcast was before it moved.
    void fill()
    {
        calendars.emplace(std::vector<Calendar>{home});
        for (std::size_t i = 0; i < events; ++i) {
            const TVEntry& entry = *(*schedule.shows)[i * (broadcasts / events)]->entry;
            const Instant start = *entry.dateTime() + std::chrono::minutes(i % 3 == 0 ? 30 : 0);
            Event event =
                eventForBroadcast(home, *entry.title(), QStringLiteral("One"),
                                  TVEntry::urlDigestFromChannel(entry.channel(), start, entry.identificator(), scheme),
                                  start, start + std::chrono::minutes(1), 10);
            calendars->saveEvent(event, EventSpan::ThisEvent, false);
        }
        calendars->commit();
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
    std::optional<MemoryEventStore> calendars;
    FavoriteSchedule schedule;
    Favorites titles;
};

void synchronise(benchmark::State& state, bool nothingToChange)
{
    Input input(std::size_t(state.range(0)));
    if (nothingToChange)
        input.synchronise();
    for (auto _ : state) {
        if (!nothingToChange) {
            state.PauseTiming();
            input.fill();
            state.ResumeTiming();
        }
        benchmark::DoNotOptimize(input.synchronise());
    }
    const std::size_t events = nothingToChange ? input.calendars->committedEvents().size() : input.events;
    state.counters["per item"] =
        benchmark::Counter(double(input.favorites + input.broadcasts + events),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void everythingMoves(benchmark::State& state)
{
    synchronise(state, false);
}
void nothingToChange(benchmark::State& state)
{
    synchronise(state, true);
}

BENCHMARK(everythingMoves)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);
BENCHMARK(nothingToChange)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

} // namespace
