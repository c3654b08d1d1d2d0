#include "alarms/AlarmFixture.h"

namespace vidora {

namespace {

const QString news = QStringLiteral("Dnevnik");
const QString film = QStringLiteral("Film");

Instant minute(int number)
{
    return testNow + std::chrono::minutes(number);
}

} // namespace

TEST_F(AlarmTest, ATitleIsFollowedOnceWhateverItsCase)
{
    engine->addFavorite(QStringLiteral("Dnevnik "));
    EXPECT_TRUE(shows->containsFavoriteNamed(QStringLiteral("dnevnik")));
    EXPECT_EQ(shows->favoriteNames(), QSet<QString>{news});
    engine->addFavorite(QStringLiteral("DNEVNIK"));
    EXPECT_EQ(favoriteUpdates, 2);
    engine->addFavorite(QStringLiteral("Vesti  "));
    EXPECT_TRUE(shows->containsFavoriteNamed(QStringLiteral("Vesti ")));
    engine->removeFavorite(QStringLiteral("dnevnik"));
    settle();
    EXPECT_EQ(shows->favorites()->size(), 1u);
    EXPECT_EQ(favoriteUpdates, 4);
}

TEST_F(AlarmTest, ManyFavouritesDoNotHoldUpARemoval)
{
    Favorites many;
    for (int i = 0; i < 1500; ++i)
        many.push_back(std::make_shared<const Favorite>(QString::number(i), -1, testNow));
    shows->setFavorites(many);
    engine->removeFavorite(QStringLiteral("700"));
    EXPECT_EQ(shows->favorites()->size(), 1499u);
}

TEST_F(AlarmTest, AFavouriteAlarmRingsForEachBroadcastThatIsStillToCome)
{
    update(one, {{news, -10, 20},
                 {news, 0, 20},
                 {news, 5, 20},
                 {news, 10, 30},
                 {news, 11, 40},
                 {news.toUpper(), 60, 90},
                 {film, 90, 120}});
    // Not a favourite: no favourite changes, and no event is made.
    engine->setAlarmForTitle(news, 10, std::nullopt, true);
    settle();
    EXPECT_TRUE(seen().isEmpty());

    favorite(news, 10);
    QStringList made = seen();
    // The synchronisation that follows makes up for those whose alarm would have had to sound already.
    EXPECT_EQ(made.removeAll(QStringLiteral("Dnevnik at 5 on One -10")), 1);
    EXPECT_EQ(made.removeAll(QStringLiteral("Dnevnik at 10 on One -10")), 1);
    const QStringList ahead{QStringLiteral("Dnevnik at 11 on One -10"), QStringLiteral("Dnevnik at 60 on One -10")};
    EXPECT_EQ(made, ahead) << "made with the title that was given, and then kept";
    EXPECT_EQ(keyValueStore.longLongForKey(QStringLiteral("lastAlarmMinutes")), 10);
    EXPECT_EQ(engine->alarmedIdentificatorType(QStringLiteral("dnevnik"))->minutes, 10);
    EXPECT_FALSE(engine->alarmedIdentificatorType(film));
    EXPECT_TRUE(engine->hasEvents());

    engine->removeAlarmForTitle(QStringLiteral("dnevnik"), true, true);
    settle();
    EXPECT_TRUE(seen().isEmpty());
    EXPECT_EQ(engine->eventCount(), 0);
    EXPECT_FALSE(engine->alarmedIdentificatorType(news));
    EXPECT_TRUE(shows->containsFavoriteNamed(news));
    EXPECT_TRUE(alarms->synchronized());
}

TEST_F(AlarmTest, PremieresOrRepeatsOnly)
{
    auto list = std::make_shared<ShowList>();
    for (int i = 1; i <= 4; ++i) {
        ShowDraft draft = TestShow{news, i * 100, i * 100 + 50}.draft(one);
        draft.entry->setPreviouslyShown(i % 2 == 0);
        list->push_back(std::move(draft).publish());
    }
    listings->storeList(one, list);
    listings->saveAllShows();
    favorite(news, 0, true);
    const QStringList repeats{QStringLiteral("Dnevnik at 200 on One 0"), QStringLiteral("Dnevnik at 400 on One 0")};
    EXPECT_EQ(seen(), repeats);
    sync();
    EXPECT_EQ(seen(), repeats);
    EXPECT_EQ(engine->alarmedIdentificatorType(news)->previouslyShown, true);
}

TEST_F(AlarmTest, ATitleShownDifferentlyIsFollowedByItsRawForm)
{
    const ObjectId magazine = ObjectId::initWithHex(QStringLiteral("58f4ded60befe78cb336a80b"));
    titles[magazine] = QStringLiteral("Magazine");
    fresh.insert(magazine);
    const auto showAt = [&](int start) {
        ShowDraft draft = TestShow{film, start, start + 30}.draft(magazine);
        draft.entry->setSubtitle1(QStringLiteral("Subtitle")); // what this channel shows for a title
        listings->storeList(magazine, std::make_shared<ShowList>(ShowList{std::move(draft).publish()}));
        listings->saveAllShows();
        listings->listingsStored();
        settle();
    };
    showAt(60);
    favorite(film, 10);
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Film at 60 on Magazine -10")});
    const QString before = calendars.committedEvents().front().eventIdentifier;
    showAt(90);
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Film at 90 on Magazine -10")});
    EXPECT_EQ(calendars.committedEvents().front().eventIdentifier, before) << "moved, not made anew";
    engine->removeFavorite(film);
    settle();
    EXPECT_TRUE(seen().isEmpty());
}

TEST_F(AlarmTest, OneBroadcast)
{
    update(one, {{film, 90, 200}, {film, 300, 400}});
    const Show show = TestShow{film, 90, 200}.show(one);
    EXPECT_EQ(engine->alarmedEntry(*show->entry), -1);
    engine->setAlarmForTitle(film, one, minute(90), minute(200), 95, true, true);
    settle();
    EXPECT_TRUE(seen().isEmpty()) << "it would have had to sound already";
    EXPECT_GT(synchs, 0);
    engine->setAlarmForTitle(film, channelId(9), minute(90), minute(200), 5, true, true);
    settle();
    EXPECT_TRUE(seen().isEmpty()) << "the catalogue doesn't know the channel";

    engine->setAlarmForTitle(film, one, minute(90), minute(200), 45, true, true);
    settle();
    EXPECT_EQ(seen(), QStringList{QStringLiteral("Film at 90 on One -45")});
    EXPECT_EQ(engine->eventCount(), 1);
    EXPECT_EQ(engine->alarmedEntry(*show->entry), 60) << "the nearest lead time that is offered";
    Event stored = calendars.committedEvents().front();
    stored.alarms = {{Seconds{600}}, {Seconds{-300}}, {Seconds{-1200}}};
    put(stored);
    EXPECT_EQ(engine->alarmedEntry(*show->entry), 5) << "the first ahead of the start";
    stored.alarms = {{Seconds{0}}, {Seconds{600}}};
    put(stored);
    EXPECT_EQ(engine->alarmedEntry(*show->entry), -1) << "else the last, which rings afterwards";

    for (const auto& [title, at] : {std::pair(QStringLiteral("FILM"), 90), std::pair(film, 300), std::pair(film, -5)}) {
        engine->removeAlarmForTitle(title, one, minute(at), true, true);
        settle();
        EXPECT_EQ(seen().size(), 1);
    }
    engine->removeAlarmForTitle(film, one, minute(90), true, true);
    settle();
    EXPECT_TRUE(seen().isEmpty());
    EXPECT_FALSE(engine->hasEvents());
}

TEST_F(AlarmTest, AlertsAreTheShowsForWhichAnAlarmWillSound)
{
    QFile icon(folder.filePath(QStringLiteral("icon.png")));
    ASSERT_TRUE(icon.open(QIODevice::WriteOnly));
    icon.write("icon");
    icon.close();
    device.iconNames[one] = QStringLiteral("icon.png");
    update(one, {{news, -10, 30}, {film, 20, 40}, {news, 60, 90}, {news, 120, 150}, {news, 300, 330}});
    favorite(news, 10);
    put(event(QStringLiteral("Unknown"), 70, QStringLiteral("One"), QStringLiteral("vidora://nobody/1")));
    const auto alerts = [&] {
        std::optional<QStringList> result;
        engine->alertsScheduleWithPriority(QualityOfService::UserInitiated, [&](const CompoundListing& listing) {
            result.emplace();
            for (const QString& date : listing.dates) {
                for (const Show& show : listing.sections.at(date))
                    *result << QString::number(
                        std::chrono::duration_cast<std::chrono::minutes>(*show->entry->dateTime() - testNow).count());
            }
        });
        DispatchQueue::runMain([&] { return result.has_value(); });
        return *result;
    };
    EXPECT_EQ(alerts(), (QStringList{QStringLiteral("60"), QStringLiteral("120"), QStringLiteral("300")}));
    for (Event stored : calendars.committedEvents()) {
        if (stored.startDate == minute(120))
            stored.alarms = {{Seconds{300}}};
        if (stored.startDate == minute(300))
            stored.alarms = {};
        put(stored);
    }
    EXPECT_EQ(alerts(), QStringList{QStringLiteral("60")});
    setSilent(40, 55); // the alarm sounds at 50
    EXPECT_EQ(alerts(), QStringList());
    setSilent(55, 80);
    EXPECT_EQ(alerts(), QStringList{QStringLiteral("60")});
    calendars.setUnreadable(true);
    EXPECT_EQ(alerts(), QStringList());

    // The favourites' own schedule has the running broadcast, too.
    std::optional<std::size_t> count;
    listings->favoritesScheduleWithPriority(QualityOfService::UserInitiated, [&](const CompoundListing& listing) {
        count = 0;
        for (const auto& [date, section] : listing.sections)
            *count += section.size();
    });
    DispatchQueue::runMain([&] { return count.has_value(); });
    EXPECT_EQ(count, 4u);
}

TEST_F(AlarmTest, TitlesAreCounted)
{
    const auto counter = [&] {
        std::optional<std::optional<std::int64_t>> result;
        database.fetchRecordWithID(news, [&](const auto& record, const auto&) {
            DispatchQueue::main().async(
                [&result, found = record ? std::optional(record->counter) : std::nullopt] { result = found; });
        });
        DispatchQueue::runMain([&] { return result.has_value(); });
        return *result;
    };
    update(one, {{news, 60, 90}});
    EXPECT_EQ(counter(), std::nullopt);
    const auto step = [&](const char* what, std::optional<std::int64_t> expected, const std::function<void()>& act) {
        act();
        settle();
        counter(); // a change is a read and then a write
        EXPECT_EQ(counter(), expected) << what;
    };
    step("a new favourite", 2, [&] { engine->addFavorite(news); });
    step("the same again", 2, [&] { engine->addFavorite(news); });
    step("an alarm on it", 5, [&] { engine->setAlarmForTitle(news, 5, {}, true); });
    step("one not by hand", 5, [&] { engine->setAlarmForTitle(news, 5, {}, false); });
    step("on one broadcast", 7, [&] { engine->setAlarmForTitle(news, one, minute(60), minute(90), 5, true, true); });
    step("a removal", 6, [&] { engine->removeAlarmForTitle(news, true, true); });
    step("no more favourite", 5, [&] { engine->removeFavorite(news); });
    calendars.setAuthorizationStatus(AuthorizationStatus::Denied, false);
    step("without a calendar", 4, [&] { engine->removeAlarmForTitle(news, true, true); });
    step("to nothing", std::nullopt, [&] { counters.incrementCounterByAmount(-4, news); });
    step("below nothing", -1, [&] { counters.incrementCounterByAmount(-1, news); });
    step("and gone", std::nullopt, [&] { counters.favoriteRemoved(news); });
}

} // namespace vidora
