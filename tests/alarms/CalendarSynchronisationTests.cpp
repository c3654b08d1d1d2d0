#include "alarms/AlarmFixture.h"

namespace vidora {

namespace {

const QString news = QStringLiteral("Dnevnik");

} // namespace

TEST_F(AlarmTest, AnEventFollowsItsBroadcastAtTheNextUpdate)
{
    update(one, {{news, 60, 90}, {QStringLiteral("Film"), 90, 200}});
    favorite(news, 10);
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 60 on One -10")});
    EXPECT_TRUE(alarms->synchronized());
    EXPECT_EQ(engine->eventCount(), 1);
    const Event made = calendars.committedEvents().front();
    EXPECT_EQ(made.endDate - made.startDate, std::chrono::minutes(30));
    EXPECT_FALSE(made.allDay);
    EXPECT_EQ(made.url, TVEntry::urlDigestFromChannel(one, made.startDate, news, QStringLiteral("vidora")));

    // By half an hour: the same event, its offset kept although the user has changed it meanwhile.
    Event changed = made;
    changed.alarms = {{Seconds{-300}}};
    put(changed);
    update(one, {{news, 90, 125}});
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 90 on One -5")});
    EXPECT_EQ(calendars.committedEvents().front().eventIdentifier, made.eventIdentifier);
    EXPECT_EQ(calendars.committedEvents().front().endDate, testNow + std::chrono::minutes(125));

    // To another channel, nearest first and of two as near the first; by five hours it is another broadcast.
    update(one, {});
    update(two, {{news, 0, 20}, {news, 80, 100}, {news, 100, 140}});
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Dnevnik at 80 on Two -5"), QStringLiteral("Dnevnik at 100 on Two -10")}));
    update(two, {{news, 420, 440}});
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 420 on Two -10")});

    // With nothing to change, nothing is written.
    const int writes = calendars.writeCount();
    sync();
    start();
    EXPECT_EQ(calendars.writeCount(), writes);
    EXPECT_EQ(engine->eventCount(), 1);
    EXPECT_GT(device.lastTask, 0u) << "the process stays until it is done";
    EXPECT_TRUE(device.tasks.empty());
}

TEST_F(AlarmTest, WhatAnotherProcessWritesToIsOnlyLookedAt)
{
    update(one, {{news, 60, 90}});
    favorite(news, 10);
    put(event(QStringLiteral("No place"), 100, QString(), QStringLiteral("vidora://host/1")));
    const QStringList before = seen();
    const int writes = calendars.writeCount();

    start(true);
    update(one, {{news, 300, 330}});
    engine->setAlarmForTitle(news, 20, std::nullopt, true);
    engine->setAlarmForTitle(news, one, testNow + std::chrono::minutes(300), std::nullopt, 5, true, true);
    engine->removeAlarmForTitle(news, one, testNow + std::chrono::minutes(60), true, true);
    engine->removeAlarmForTitle(news, true, true);
    engine->removeAllEvents();
    sync();
    EXPECT_EQ(seen(), before);
    EXPECT_EQ(calendars.writeCount(), writes);
    EXPECT_EQ(engine->eventCount(), 2) << "those of the calendar are shown";
    EXPECT_EQ(engine->alarmedIdentificatorType(news)->minutes, 10);
    calendars.setAuthorizationStatus(AuthorizationStatus::NotDetermined, true);
    sync();
    EXPECT_EQ(calendars.authorizationStatusForEntityType(EntityType::Event), AuthorizationStatus::NotDetermined);
}

TEST_F(AlarmTest, InTheBackgroundTheSettingsAreWrittenWithTheCalendar)
{
    const auto writes = [this](const std::function<void()>& act) {
        device.settingsSyncs = 0;
        act();
        settle();
        return device.settingsSyncs > 0;
    };
    update(one, {{news, 60, 90}});
    favorite(news, 10);
    EXPECT_FALSE(writes([&] { sync(); }));
    device.inBackground = true;
    EXPECT_TRUE(writes([&] { sync(); }));
    EXPECT_TRUE(writes([&] { engine->removeAlarmForTitle(news, true, true); }));
    EXPECT_TRUE(writes([&] { engine->setAlarmForTitle(news, 5, std::nullopt, true); }));
}

TEST_F(AlarmTest, ABroadcastShownTwiceHasOneEvent)
{
    update(one, {{news, 60, 90}, {news, 60, 90}, {news, 300, 330}});
    engine->addFavorite(news);
    shows->setFavorites({std::make_shared<const Favorite>(news, 10, testNow),
                         std::make_shared<const Favorite>(news.toUpper(), 20, testNow)});
    sync();
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Dnevnik at 60 on One -10"), QStringLiteral("Dnevnik at 300 on One -10")}));
}

TEST_F(AlarmTest, AVanishedBroadcastTakesItsEventAlongOnlyWhereTheListIsFresh)
{
    update(one, {{news, 60, 90}});
    update(two, {{news, 2000, 2030}});
    favorite(news, 10);
    ASSERT_EQ(seen().size(), 2);

    fresh = {two};
    update(one, {});
    EXPECT_EQ(seen().size(), 2) << "the list may only not be loaded";
    titles.erase(one);
    sync();
    EXPECT_EQ(seen().size(), 2) << "the channel has left the catalogue";
    titles[one] = QStringLiteral("One");
    fresh = {one, two};
    sync();
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 2000 on Two -10")});

    // With no broadcast of a favourite in memory nothing is judged.
    update(two, {});
    EXPECT_EQ(seen().size(), 1);

    // Nor without favourites.
    engine->removeFavorite(news);
    settle();
    EXPECT_TRUE(seen().isEmpty());
    put(event(news, 60, QStringLiteral("One"), QStringLiteral("vidora://left/over")));
    sync();
    EXPECT_EQ(seen().size(), 1);
}

TEST_F(AlarmTest, CleansUpItsOwnBrokenAndDoubleEventsAndNobodyElses)
{
    const QStringList foreign{QStringLiteral("https://example.org/1"), QString(), QStringLiteral("vidorax://x/1")};
    for (const QString& url : foreign) {
        put(event(news, 60, QString(), url, {}));
        put(event(news, 60, QString(), url, {}));
    }
    engine->addFavorite(news);
    const QString ours = QStringLiteral("vidora://host/1");
    put(event(QStringLiteral("No place"), 100, QString(), ours));
    put(event(QStringLiteral("No alarm"), 110, QStringLiteral("One"), ours, {}));
    put(event(QStringLiteral("Twice"), -120, QStringLiteral("One"), ours));
    put(event(QStringLiteral("TWICE"), -120, QStringLiteral("One"), ours));
    put(event(QStringLiteral("Twice"), -120, QStringLiteral("Two"), ours));
    sync();
    QStringList left = seen();
    EXPECT_EQ(left.removeAll(QStringLiteral("Dnevnik at 60 on ")), 6);
    EXPECT_EQ(left,
              (QStringList{QStringLiteral("Twice at -120 on One -10"), QStringLiteral("Twice at -120 on Two -10")}));
}

TEST_F(AlarmTest, SilentHoursTakeFavouriteAlarmsAwayAndLeaveThoseSetByHand)
{
    update(one, {{news, 60, 90}, {QStringLiteral("Film"), 90, 200}, {news, 600, 630}});
    favorite(news, 10);
    engine->setAlarmForTitle(QStringLiteral("Film"), one, testNow + std::chrono::minutes(90),
                             testNow + std::chrono::minutes(200), 15, true, true);
    settle();
    ASSERT_EQ(seen().size(), 3);

    setSilent(40, 80);
    sync();
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Film at 90 on One -15"), QStringLiteral("Dnevnik at 600 on One -10")}));
    sync();
    EXPECT_EQ(seen().size(), 2);
    engine->setAlarmForTitle(news, one, testNow + std::chrono::minutes(60), testNow + std::chrono::minutes(90), 10,
                             true, false);
    settle();
    EXPECT_EQ(seen().size(), 2) << "not by hand";

    silentHours.setEnabled(false);
    sync();
    EXPECT_EQ(seen().front(), QStringLiteral("Dnevnik at 60 on One -10"));
}

TEST_F(AlarmTest, AManualAlarmOfNoFavouriteGoesWithItsBroadcast)
{
    update(one, {{QStringLiteral("Film"), 90, 200}, {news, 300, 330}});
    engine->addFavorite(news);
    engine->setAlarmForTitle(QStringLiteral("Film"), one, testNow + std::chrono::minutes(90),
                             testNow + std::chrono::minutes(200), 15, true, true);
    settle();
    EXPECT_EQ(seen().size(), 1);
    sync(); // the address is none of a favourite's
    EXPECT_TRUE(seen().isEmpty());
}

TEST_F(AlarmTest, AFailureLeavesTheWorkForTheNextTime)
{
    update(one, {{news, 60, 90}});
    favorite(news, 10);
    calendars.setUnreadable(true);
    update(one, {{news, 70, 90}});
    EXPECT_FALSE(alarms->synchronized());
    EXPECT_EQ(engine->eventCount(), 1);
    calendars.setUnreadable(false);
    engine->syncAlarms();
    settle();
    EXPECT_TRUE(alarms->synchronized());
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 70 on One -10")});

    // Refused: nothing is pending, no event is made, the favourite is one all the same.
    calendars.setAuthorizationStatus(AuthorizationStatus::Denied, false);
    engine->setSynchronized(false);
    favorite(QStringLiteral("Film"), 5);
    sync();
    EXPECT_TRUE(alarms->synchronized());
    EXPECT_TRUE(shows->containsFavoriteNamed(QStringLiteral("Film")));
    // Granted later.
    calendars.setAuthorizationStatus(AuthorizationStatus::NotDetermined, true);
    update(one, {{news, 80, 90}});
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Dnevnik at 80 on One -10")});
}

TEST_F(AlarmTest, AChangeDuringASynchronisationIsNotCoveredUp)
{
    update(one, {{news, 60, 90}});
    favorite(news, 10);
    const std::uint64_t before = alarms->changes();
    alarms->setSynchronized(false);
    alarms->setSynchronizedUnlessChanged(before);
    EXPECT_FALSE(alarms->synchronized());
    EXPECT_FALSE(Alarms(folder.path()).synchronized());
    sync();
    EXPECT_TRUE(Alarms(folder.path()).synchronized());
}

TEST_F(AlarmTest, OneSynchronisationServesAllWhoAskUntilItBegins)
{
    favorite(QStringLiteral("Dnevnik"), 10);
    synchs = 0;
    for (int i = 0; i < 50; ++i) {
        listings->storeList(one, listOf(one, {{QStringLiteral("Dnevnik"), 30 + i, 60 + i}}));
        listings->listingsStored();
        engine->syncAlarms();
    }
    settle();
    EXPECT_LE(synchs, 5);
    EXPECT_TRUE(alarms->synchronized());
    EXPECT_EQ(seen(), QStringList(QStringLiteral("Dnevnik at 79 on One -10"))) << "the last one saw the last list";
}

/// Silent hours are about the moment at which an alarm rings, not about the show.
TEST_F(AlarmTest, SilentHoursAreJudgedByTheAlarmsMoment)
{
    const QTimeZone zone = DeviceSettings::timeZone();
    const QTime now = SilentHours::timeOf(testNow, zone);
    silentHours.setFromTimestamp(SilentHours::timestampOf(now.addSecs(100 * 60), zone));
    silentHours.setToTimestamp(SilentHours::timestampOf(now.addSecs(130 * 60), zone));
    // Rings at 90 for a show at 110, which is inside; at 120, which is inside, for one at 140; and both outside.
    update(one, {{news, 110, 115}, {news, 140, 150}, {news, 400, 410}});
    favorite(news, 20);
    ASSERT_EQ(seen().size(), 3);
    silentHours.setEnabled(true);
    sync();
    EXPECT_EQ(seen(),
              (QStringList{QStringLiteral("Dnevnik at 110 on One -20"), QStringLiteral("Dnevnik at 400 on One -20")}));
    silentHours.setEnabled(false);
    sync();
    EXPECT_EQ(seen().size(), 3);
}

TEST_F(AlarmTest, AnEventThatMovedIsForgottenUnderBothItsAddresses)
{
    const auto broadcastAt = [&](int minute) { return TestShow{news, minute, minute + 10}.show(one)->entry; };
    const auto eventAt = [&](int minute) {
        Event made = event(news, minute, QStringLiteral("One"), QStringLiteral("x"));
        made.url = broadcastAt(minute)->urlDigestWithScheme(QStringLiteral("vidora"));
        made.eventIdentifier = QStringLiteral("e");
        return made;
    };
    const QString scheme = QStringLiteral("vidora");
    CalendarEvents index;
    index.add(eventAt(60), scheme);
    index.add(eventAt(90), scheme);
    index.removeWithIdentifier(QStringLiteral("e"));
    index.removeWithIdentifier(QStringLiteral("e"));
    EXPECT_EQ(index.eventCount(), 0);
    // Another event at the address takes over, and the first's identifier no longer leads there.
    index.add(eventAt(60), scheme);
    Event other = eventAt(60);
    other.eventIdentifier = QStringLiteral("f");
    index.add(other, scheme);
    index.removeWithIdentifier(QStringLiteral("e"));
    EXPECT_EQ(index.identifier(*broadcastAt(60), scheme), QStringLiteral("f"));
    other.eventIdentifier = QStringLiteral("theirs");
    index.addOfOther(other, scheme);
    EXPECT_EQ(index.identifier(*broadcastAt(60), scheme), QStringLiteral("f"));
    other.url = broadcastAt(90)->urlDigestWithScheme(scheme);
    index.addOfOther(other, scheme);
    EXPECT_EQ(index.eventCount(), 1);
    EXPECT_EQ(index.identifier(*broadcastAt(90), scheme), QStringLiteral("theirs"));
}

/// Two people who share a calendar, and nothing else.
TEST_F(AlarmTest, EventsOfAnotherDeviceAreLeftAlone)
{
    update(one, {{news, 60, 90}, {QStringLiteral("Film"), 100, 200}, {QStringLiteral("Film"), 300, 400}});
    favorite(news, 10);
    const auto theirs = [&](int minute, const char* mark) {
        Event made = event(QStringLiteral("Film"), minute, QStringLiteral("One"), QStringLiteral("x"));
        made.url = TVEntry::urlDigestFromChannel(one, made.startDate, made.title, QStringLiteral("vidora"));
        made.device = QString::fromLatin1(mark);
        return made;
    };
    put(theirs(100, "0ther"));
    put(theirs(500, "0ther"));
    put(theirs(500, "0ther"));
    put(theirs(700, ""));
    sync();
    EXPECT_EQ(seen(), (QStringList{QStringLiteral("Dnevnik at 60 on One -10"), QStringLiteral("Film at 100 on One -10"),
                                   QStringLiteral("Film at 500 on One -10"), QStringLiteral("Film at 500 on One -10")}))
        << "what bears no mark is ours";
    EXPECT_EQ(engine->eventCount(), 1) << "and may not keep the user from choosing another calendar";

    favorite(QStringLiteral("Film"), 10);
    EXPECT_EQ(seen().filter(QStringLiteral("Film at 100")).size(), 1) << "one alarm for a broadcast";
    const auto entry = TestShow{QStringLiteral("Film"), 100, 200}.show(one)->entry;
    EXPECT_EQ(engine->ringOf(*entry)->moment, testNow + std::chrono::minutes(90));
    engine->setAlarmForTitle(QStringLiteral("Film"), one, *entry->dateTime(), entry->endDateTime(), 37, true, true);
    settle();
    EXPECT_EQ(engine->ringOf(*entry)->lead, Seconds(37 * 60)) << "to the minute";
    EXPECT_EQ(engine->alarmedEntry(*entry), 30);
    EXPECT_EQ(seen().filter(QStringLiteral("Film at 100")).size(), 2) << "by hand, at another time";
    engine->removeFavorite(QStringLiteral("Film"));
    settle();
    EXPECT_EQ(seen().filter(QStringLiteral("Film")).size(), 3);
    EXPECT_EQ(seen().filter(QStringLiteral("Film at 300")).size(), 0);
}

TEST_F(AlarmTest, ASetAlarmIsChangedInPlace)
{
    update(one, {{news, 60, 90}, {news, 300, 330}, {news, 600, 630}});
    favorite(news, 10);
    for (Event event : calendars.committedEvents()) {
        event.alarms.push_back({Seconds{-7200}}); // theirs
        put(event);
    }
    const auto identifiers = [&] {
        std::set<QString> result;
        for (const Event& event : calendars.committedEvents())
            result.insert(event.eventIdentifier);
        return result;
    };
    const auto before = identifiers();
    favorite(news, 20);
    EXPECT_EQ(identifiers(), before);
    EXPECT_EQ(seen().front(), QStringLiteral("Dnevnik at 60 on One -20 -120"));
    favorite(news, 20, true);
    EXPECT_TRUE(seen().isEmpty()) << "what the new alarm doesn't ask for goes";
}

TEST_F(AlarmTest, ARenamedCalendarStaysTheOneAndALostOneIsTold)
{
    Calendar work = home;
    work.calendarIdentifier = QStringLiteral("w");
    work.title = QStringLiteral("Work");
    work.address = QStringLiteral("https://example.org/w/");
    calendars.setCalendars({home, work});
    engine->saveCalendar(work);
    settle();
    start();
    EXPECT_EQ(engine->selectedCalendar(), work);
    work.title = QStringLiteral("Arbeit");
    work.color = CalendarColor{0, 0, 1, 1};
    work.calendarIdentifier = QStringLiteral("w2"); // the account was added anew
    calendars.setCalendars({home, work});
    start();
    EXPECT_EQ(engine->selectedCalendar(), work);
    EXPECT_FALSE(engine->lostCalendar());
    calendars.setCalendars({home});
    EXPECT_EQ(engine->selectedCalendar(), home) << "within one run as well";
    settle();
    EXPECT_EQ(engine->lostCalendar(), QStringLiteral("Arbeit"));
    engine->saveCalendar(work);
    settle();
    EXPECT_FALSE(engine->lostCalendar());
}

TEST_F(AlarmTest, TheCalendarIsFoundAgainByItsLooks)
{
    const auto calendar = [](const char* id, const char* title, const char* source, double red, bool writable = true) {
        return Calendar{QString::fromLatin1(id), QString::fromLatin1(title), QString::fromLatin1(source),
                        CalendarColor{red, 0, 0, 1}, writable};
    };
    const Calendar work = calendar("w", "Work", "A", 0.25);
    EXPECT_EQ(SelectedCalendar::colorStringForCalendar(work),
              QStringLiteral("Work:A:0.250000:0.000000:0.000000:1.000000"));
    Calendar plain = work;
    plain.color.reset();
    EXPECT_TRUE(SelectedCalendar::colorStringForCalendar(plain).endsWith(
        QStringLiteral(":0.500000:0.500000:0.500000:0.500000")));

    MemoryEventStore store;
    const std::vector<std::pair<std::vector<Calendar>, const char*>> cases{
        {{calendar("a", "Work", "B", 1), calendar("b", "Work", "A", 0.5), calendar("c", "Work", "A", 0.25)}, "c"},
        {{calendar("a", "Work", "B", 1), calendar("b", "Work", "A", 0.5)}, "b"},
        {{calendar("0", "Another", "A", 0.25), calendar("a", "Work", "B", 1)}, "a"},
        {{calendar("0", "Another", "A", 0.25), calendar("c", "Work", "A", 0.25, false)}, "0"},
    };
    for (const auto& [present, expected] : cases) {
        store.setCalendars(present);
        defaults.setObject(SelectedCalendar::colorStringForCalendar(work), SelectedCalendar::key);
        SelectedCalendar selected(store, defaults);
        EXPECT_TRUE(selected.ensureSelectedCalendarIsSet());
        EXPECT_EQ(selected.calendar()->calendarIdentifier, QLatin1String(expected));
        EXPECT_FALSE(selected.ensureSelectedCalendarIsSet());
    }
    calendars.setCalendars({home, work});
    engine->saveCalendar(work);
    settle();
    EXPECT_EQ(engine->selectedCalendar(), work);
    EXPECT_EQ(keyValueStore.stringForKey(SelectedCalendar::key), defaults.stringForKey(SelectedCalendar::key));
    start();
    EXPECT_EQ(engine->selectedCalendar(), work);
}

/// Random sequences of the user's doings here and of what happens to the calendar elsewhere.
TEST_F(AlarmTest, WhateverHappensOthersEventsStayAndOursAreNotDoubled)
{
    std::uint32_t state = 7;
    const auto draw = [&](std::uint32_t bound) { return (state = state * 1664525 + 1013904223) / 65536 % bound; };
    const QStringList names = QStringLiteral("Dnevnik Film Vesti").split(QLatin1Char(' '));
    std::map<QString, QString> foreign;
    const auto text = [](const Event& event) {
        return QStringLiteral("%1|%2|%3|%4")
            .arg(event.title, event.location, isoText(event.startDate))
            .arg(event.alarms.size());
    };
    for (int step = 0; step < 300; ++step) {
        const QString name = names[draw(3)];
        const ObjectId channel = draw(2) ? one : two;
        const int minute = 30 * int(1 + draw(40));
        const Instant at = testNow + std::chrono::minutes(minute);
        switch (draw(9)) {
        case 0:
        case 1:
        case 2: {
            std::vector<TestShow> list;
            for (int from = minute; from < minute + 90 * int(draw(6)); from += 90)
                list.push_back({names[draw(3)], from, from + 90});
            listings->storeList(channel, listOf(channel, list));
            listings->saveAllShows();
            listings->listingsStored();
            break;
        }
        case 3:
            engine->addFavorite(name);
            engine->setAlarmForTitle(name, int(draw(30)), std::nullopt, true);
            break;
        case 4:
            draw(2) ? engine->removeFavorite(name) : engine->removeAlarmForTitle(name, true, true);
            break;
        case 5:
            engine->setAlarmForTitle(name, channel, at, at + std::chrono::minutes(30), 5, true, true);
            break;
        case 6:
            engine->removeAlarmForTitle(name, channel, at, true, true);
            break;
        case 7: {
            Event others = event(name, minute, titles[channel], QLatin1String(draw(2) ? "https://a.example/" : ""),
                                 draw(2) ? std::vector<int>{-10} : std::vector<int>{});
            put(others);
            for (const Event& stored : calendars.committedEvents()) {
                if (!isOurs(stored, QStringLiteral("vidora")))
                    foreign[stored.eventIdentifier] = text(stored);
            }
            break;
        }
        default: // one of ours is moved by hand, or doubled by a calendar program
            for (Event event : calendars.committedEvents()) {
                if (!isOurs(event, QStringLiteral("vidora")) || draw(3))
                    continue;
                if (draw(2))
                    event.eventIdentifier.clear();
                else
                    event.startDate = event.endDate = event.startDate + std::chrono::minutes(15);
                put(event);
                break;
            }
        }
        if (draw(3) == 0)
            settle();
    }
    engine->addFavorite(news);
    sync();
    sync();
    std::set<QString> places;
    std::size_t othersSeen = 0;
    for (const Event& event : calendars.committedEvents()) {
        if (isOurs(event, QStringLiteral("vidora")))
            EXPECT_TRUE(places.insert(text(event).toLower()).second);
        else
            othersSeen += foreign.at(event.eventIdentifier) == text(event);
    }
    EXPECT_EQ(othersSeen, foreign.size());
}

} // namespace vidora
