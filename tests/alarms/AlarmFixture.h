#pragma once

#include "alarms/AlarmEngine.h"
#include "calendar/MemoryEventStore.h"
#include "platform/DeviceSettings.h"
#include "platform/EmbeddedPublicDatabase.h"
#include "store/StoreFixture.h"

#include <map>

namespace vidora {

/// A device with the alarms of a user over calendars in memory, and a store of shows that tests fill.
class AlarmTest : public ::testing::Test, protected AlarmChannels, protected AlarmScreens
{
protected:
    AlarmTest()
    {
        device.selection = {one, two};
        titles = {{one, QStringLiteral("One")}, {two, QStringLiteral("Two")}};
        fresh = {one, two};
        start();
    }
    ~AlarmTest() override
    {
        listings.reset();
        engine.reset();
    }

    /// Starts the alarms and the store anew over the same folder and calendars.
    void start(bool readOnly = false)
    {
        listings.reset();
        engine.reset();
        shows.emplace(folder.path(), keyValueStore);
        alarms.emplace(folder.path());
        engine = std::make_unique<AlarmEngine>(AlarmSurroundings{clock, *shows, *alarms, silentHours, counters,
                                                                 calendars, defaults, keyValueStore, device, *this,
                                                                 *this, QStringLiteral("vidora"), readOnly});
        listings = std::make_unique<TVListings>(
            TVListings::Surroundings{clock, folder.path(), device, icons, *engine, device, QStringLiteral("vidora")});
        engine->setListings(*listings);
        settle();
    }
    /// Runs the main queue until nothing is going on.
    void settle()
    {
        for (int turn = 0; turn < 2; ++turn) { // a block of the store may be on its way to the main queue
            bool idle = false;
            listings->onAirShowsWithQueue(DispatchQueue::main(), [&](auto) { engine->whenIdle([&] { idle = true; }); });
            DispatchQueue::runMain([&] { return idle; });
        }
    }
    /// Replaces a channel's list, as an update does.
    void update(const ObjectId& channel, const std::vector<TestShow>& list)
    {
        listings->storeList(channel, listOf(channel, list));
        listings->saveAllShows();
        listings->listingsStored();
        settle();
    }
    void sync()
    {
        engine->setSynchronized(false);
        engine->syncAlarms();
        settle();
    }
    /// From one minute to another, counted from testNow.
    void setSilent(int from, int to)
    {
        const QTimeZone zone = DeviceSettings::timeZone();
        const QTime now = SilentHours::timeOf(testNow, zone); // 19:00 UTC is 15:30 at the device
        silentHours.setFromTimestamp(SilentHours::timestampOf(now.addSecs(from * 60), zone));
        silentHours.setToTimestamp(SilentHours::timestampOf(now.addSecs(to * 60), zone));
        silentHours.setEnabled(true);
    }
    void favorite(const QString& title, int minutes, std::optional<bool> shown = {})
    {
        engine->addFavorite(title);
        engine->setAlarmForTitle(title, minutes, shown, true);
        settle();
    }
    /// What another program sees: "title at minute -lead on location", in the order of starts.
    QStringList seen() const
    {
        QStringList result;
        std::vector<Event> events = calendars.committedEvents();
        std::stable_sort(events.begin(), events.end(),
                         [](const Event& a, const Event& b) { return a.startDate < b.startDate; });
        for (const Event& event : events) {
            const auto minute = std::chrono::duration_cast<std::chrono::minutes>(event.startDate - testNow).count();
            QString text = QStringLiteral("%1 at %2 on %3").arg(event.title).arg(minute).arg(event.location);
            for (const EventAlarm& alarm : event.alarms)
                text += QStringLiteral(" %1").arg(alarm.relativeOffset.count() / 60);
            result << text;
        }
        return result;
    }
    Event event(const QString& title, int minute, const QString& location, const QString& url,
                std::vector<int> offsets = {-10})
    {
        Event event;
        event.title = title;
        event.location = location;
        event.url = URL::fromText(url);
        event.startDate = testNow + std::chrono::minutes(minute);
        event.endDate = event.startDate + std::chrono::minutes(30);
        event.calendar = home;
        for (const int offset : offsets)
            event.alarms.push_back({Seconds{offset * 60}});
        return event;
    }
    void put(Event event) { EXPECT_FALSE(calendars.saveEvent(event, EventSpan::ThisEvent, true)); }

    // AlarmChannels, AlarmScreens
    bool anyIsSelected() const override { return !device.selection.empty(); }
    std::optional<QString> titleOfChannel(const ObjectId& channel) const override
    {
        const auto found = titles.find(channel);
        return found == titles.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<ObjectId> channelWithTitle(const QString& title) const override
    {
        for (const auto& [channel, name] : titles) {
            if (name == title)
                return channel;
        }
        return std::nullopt;
    }
    bool isFresh(const ObjectId& channel) const override { return fresh.contains(channel); }
    void favoritesUpdated() override { ++favoriteUpdates; }
    void notificationsSynched() override { ++synchs; }
    void updateBadge() override {}

    const ObjectId one = channelId(1), two = channelId(2);
    const Calendar home{QStringLiteral("home"), QStringLiteral("Home"), QStringLiteral("This device"),
                        CalendarColor{1, 0, 0, 1}, true};
    FixedClock clock{testNow};
    QTemporaryDir folder;
    StoreDevice device;
    TVStationIcons icons{folder.path()};
    KeyValueStore keyValueStore{folder.filePath(QStringLiteral("cloud.sqlite"))};
    UserDefaults defaults{folder.filePath(QStringLiteral("settings.json"))};
    SilentHours silentHours{keyValueStore};
    MemoryEventStore calendars{{home}};
    EmbeddedPublicDatabase database{folder.filePath(QStringLiteral("public.sqlite")), clock};
    ShowCounters counters{&database};
    std::optional<TVShows> shows;
    std::optional<Alarms> alarms;
    std::unique_ptr<AlarmEngine> engine;
    std::unique_ptr<TVListings> listings;
    std::map<ObjectId, QString> titles;
    std::set<ObjectId> fresh;
    std::atomic<int> favoriteUpdates = 0, synchs = 0;
};

} // namespace vidora
