#include "store/LocalDays.h"
#include "store/ShowArchive.h"
#include "store/StoreFixture.h"

namespace vidora {
namespace {

const ObjectId one = channelId(1), two = channelId(2), three = channelId(3);
constexpr QualityOfService priority = QualityOfService::Utility;

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<qsizetype>(size));
}

class ShowQueriesTest : public StoreTest
{
protected:
    void SetUp() override
    {
        giveIcons({one, two, three});
        device.selection = {two, one, three};
        start();
    }
    QStringList inCategory(TVListingsCategory mask)
    {
        return titlesOf(compound([&](auto block) { listings->showsWithCategory(mask, priority, std::move(block)); }));
    }
    QStringList inAll(TVListingsCategory category)
    {
        return titlesOf(
            compound([&](auto block) { listings->allShowsWithCategory(category, priority, std::move(block)); }));
    }
    QStringList withTitle(const QString& title)
    {
        return titlesOf(
            compound([&](auto block) { listings->showScheduleForTitle(title, priority, std::move(block)); }));
    }
    bool hasBroadcast(const QString& title, bool previouslyShown)
    {
        return answer<bool>([&](auto block) { listings->broadcastForTitle(title, previouslyShown, std::move(block)); });
    }
    ShowList containing(const QString& pattern)
    {
        return *answer<SharedShowList>([&](auto block) {
            listings->showsContainingPattern(pattern, [block](SharedShowList shows) {
                DispatchQueue::main().async([block, shows] { block(shows); });
            });
        });
    }
    std::unordered_map<ObjectId, int> counts()
    {
        return answer<std::unordered_map<ObjectId, int>>([&](auto block) {
            listings->showCountForSelectedChannelsForQueue(DispatchQueue::main(), std::move(block));
        });
    }
    static std::vector<TestShow> series(int count)
    {
        std::vector<TestShow> shows;
        for (int i = 0; i < count; ++i)
            shows.push_back({QString::number(i), i, i + 1, 2});
        return shows;
    }
};

TEST_F(ShowQueriesTest, OnAirAnswersForEachSelectedChannel)
{
    std::vector<TestShow> many = series(10);
    many.insert(many.begin(), {{"over"_s, -20, -10}, {"ends now"_s, -10, 0}, {"no end"_s, -5, {}}});
    store(one, many);
    EXPECT_TRUE(cached(three)->empty()); // behind the load
    ShowArchive::archiveRootObject(*listOf(three, {{"past"_s, -20, 0}, {"filed"_s, 10, 20}}), file(three));
    const auto onAir = answer<std::vector<ShowList>>(
        [&](auto block) { listings->onAirShowsWithQueue(DispatchQueue::main(), std::move(block)); });
    ASSERT_EQ(onAir.size(), 3u);
    EXPECT_TRUE(onAir[0].empty());
    EXPECT_EQ(titles(onAir[1]), QStringList({"ends now"_s, "no end"_s, "0"_s, "1"_s}));
    EXPECT_EQ(titles(onAir[2]), QStringList("filed"_s));
    EXPECT_EQ(counts(), (std::unordered_map<ObjectId, int>{{one, 4}, {two, 0}, {three, 0}})) << "counts read no file";
    EXPECT_TRUE(cached(three)->empty()) << "a list read for a query isn't kept";
}

TEST_F(ShowQueriesTest, Categories)
{
    store(one, {{"unclassified"_s, 0, 10, {}},
                {"nothing"_s, 1, 10, 0},
                {"comedy"_s, 2, 10, 0x101},
                {"comedy series"_s, 3, 10, 0x102},
                {"news"_s, 4, 10, 0x10}});
    const std::pair<TVListingsCategory, QStringList> cases[] = {
        {category::series, {"comedy series"_s}},
        {category::film, {"comedy"_s}},
        {category::comedies, {"comedy"_s}},
        {category::comedies | category::series, {"comedy series"_s}},
        {category::news, {"news"_s}},
        {category::sports, {}},
    };
    for (const auto& [mask, expected] : cases)
        EXPECT_EQ(inCategory(mask), expected) << mask;
    EXPECT_EQ(inAll(category::all),
              QStringList({"unclassified"_s, "nothing"_s, "comedy"_s, "comedy series"_s, "news"_s}));
    clock.advance(std::chrono::minutes(10)); // all end now
    EXPECT_EQ(inCategory(category::news), QStringList());
    EXPECT_EQ(inAll(category::all).size(), 5);
}

TEST_F(ShowQueriesTest, NoFlatListIsLongerThanItsCap)
{
    store(one, series(2100));
    EXPECT_EQ(inCategory(category::series).size(), 2000);
    EXPECT_EQ(inAll(category::all).size(), 2000);
    EXPECT_EQ(containing(QString()).size(), 2000u) << "an empty pattern is in every text";
    listings->setPopularShows(listOf(one, series(2100)));
    EXPECT_EQ(inAll(category::popular).size(), 2100);
}

// 19:00 UTC is 15:30 on the device.
TEST_F(ShowQueriesTest, EveningShowsStartInTheEveningOfTheDevice)
{
    store(one, {{"15:30"_s, 0, 600},
                {"18:59"_s, 209, 300},
                {"19:00"_s, 210, 300},
                {"23:59"_s, 509, 600},
                {"0:00"_s, 510, 600},
                {"19:10 next day"_s, 1660, 1700}});
    EXPECT_EQ(inAll(category::evening), QStringList({"19:00"_s, "23:59"_s, "19:10 next day"_s}));
    clock.advance(std::chrono::minutes(300)); // the first ends now
    EXPECT_EQ(inAll(category::evening), QStringList({"19:00"_s, "23:59"_s, "19:10 next day"_s}));
    clock.advance(std::chrono::minutes(1));
    EXPECT_EQ(inAll(category::evening), QStringList({"23:59"_s, "19:10 next day"_s}));
}

TEST_F(ShowQueriesTest, EveningShowsMayEndNowButNotBefore)
{
    store(one, {{"ends now"_s, 210, 240}, {"longer"_s, 211, 300}});
    EXPECT_EQ(inAll(category::evening).size(), 2); // behind the merge
    clock.advance(std::chrono::minutes(240));
    EXPECT_EQ(inAll(category::evening), QStringList({"ends now"_s, "longer"_s}));
    clock.advance(Milliseconds(1));
    EXPECT_EQ(inAll(category::evening), QStringList("longer"_s));
}

TEST_F(ShowQueriesTest, WindowsOfAGridHoldWhatRunsInThem)
{
    store(one, {{"over"_s, -60, 0},
                {"reaches in"_s, -10, 10},
                {"no end ahead"_s, -5, {}},
                {"within"_s, 10, 20},
                {"no end"_s, 15, {}},
                {"reaches out"_s, 20, 90},
                {"behind"_s, 30, 40}});
    store(two, {{"around"_s, -10, 100}});
    const auto window = answer<std::vector<ShowList>>([&](auto block) {
        listings->showsOfChannels({two, three, one}, testNow, testNow + std::chrono::minutes(30), DispatchQueue::main(),
                                  std::move(block));
    });
    ASSERT_EQ(window.size(), 3u);
    EXPECT_EQ(titles(window[0]), QStringList("around"_s));
    EXPECT_TRUE(window[1].empty());
    EXPECT_EQ(titles(window[2]), QStringList({"reaches in"_s, "within"_s, "no end"_s, "reaches out"_s}));
}

TEST_F(ShowQueriesTest, PopularShowsAreThoseThatAreNotOver)
{
    EXPECT_EQ(inAll(category::popular), QStringList());
    listings->setPopularShows(listOf(one, {{"ends now"_s, -10, 0}, {"hit"_s, 0, 10}}));
    EXPECT_EQ(inAll(category::popular), QStringList("hit"_s));
}

TEST_F(ShowQueriesTest, Titles)
{
    ShowDraft repeat = TestShow{"Kviz"_s, 0, 10}.draft(one);
    repeat.entry->setPreviouslyShown(true);
    auto list = std::make_shared<ShowList>(*listOf(one, {{"Kviz"_s, -10, 5}, {"kviz"_s, -5, 5}}));
    list->push_back(std::move(repeat).publish());
    listings->storeList(one, list);
    listings->saveAllShows();
    EXPECT_EQ(withTitle("Kviz"_s).size(), 2) << "case counts";
    EXPECT_TRUE(withTitle("Kvi"_s).isEmpty());
    EXPECT_TRUE(hasBroadcast("Kviz"_s, true));
    EXPECT_TRUE(hasBroadcast("kviz"_s, false));
    EXPECT_FALSE(hasBroadcast("kviz"_s, true));
    clock.advance(std::chrono::minutes(5));
    EXPECT_TRUE(hasBroadcast("kviz"_s, false)) << "ends now";
    clock.advance(Milliseconds(1));
    EXPECT_FALSE(hasBroadcast("kviz"_s, false));
    EXPECT_EQ(withTitle("Kviz"_s).size(), 1);
}

TEST_F(ShowQueriesTest, SearchLooksIntoEveryText)
{
    ShowDraft draft = TestShow{"Žuti AUTO"_s, 0, 10}.draft(one);
    draft.entry->setInstantDescription1("opis"_s);
    draft.entry->setInstantDetails1("detalji"_s);
    draft.entry->setSubtitle1("podnaslov"_s);
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    AttributedText roles("Ana "_s);
    TextAttributes large;
    large.pointSize = 20;
    roles.append("Perić"_s, large);
    *draft.extra = {AttributedText("dugi opis"_s), "epizoda"_s, "1999"_s, "režija"_s, roles, {}, {}, {}, false};
    listings->storeList(one, std::make_shared<const ShowList>(ShowList{std::move(draft).publish()}));
    store(two, {{"other"_s, 0, 10}, {"over"_s, -10, -1}});
    for (const auto& pattern : {"ZUTI auto"_s, "žuti"_s, "OPIS"_s, "talj"_s, "naslov"_s, "dugi"_s, "epi"_s, "99"_s,
                                "rezija"_s, "ana peric"_s})
        EXPECT_EQ(titles(containing(pattern)), QStringList("Žuti AUTO"_s)) << pattern.toStdString();
    EXPECT_TRUE(containing("over"_s).empty() && containing("xyz"_s).empty());
    EXPECT_EQ(titles(containing("o"_s)), QStringList({"Žuti AUTO"_s, "other"_s}));
    listings->dropSearchIndex();
    store(two, {{"newer"_s, 0, 10}});
    EXPECT_EQ(titles(containing("NEW"_s)), QStringList("newer"_s));
    clock.advance(std::chrono::minutes(11));
    EXPECT_TRUE(containing("NEW"_s).empty());
}

TEST_F(ShowQueriesTest, SearchOverlooksTheAlphabet)
{
    TVEntry::setCyrillicDevice(true);
    ShowDraft draft = TestShow{"Njegoš: Extra show"_s, 0, 10}.draft(one);
    draft.entry->setLanguage("sr"_s);
    draft.extra = std::make_shared<TVEntrySupplementalData>();
    draft.extra->language = "sr"_s;
    draft.extra->directedBy = "Marija Džomba Ćurčić"_s;
    draft.extra->updateAlphabet();
    listings->storeList(one, std::make_shared<const ShowList>(ShowList{std::move(draft).publish()}));
    store(two, {{"Ljubav Đoke Šajkaša"_s, 0, 10}});
    for (const auto& pattern : {"njegos"_s, "NJEGOŠ: extra"_s, "show"_s, "његош"_s, "Eктрa шoв"_s, "ЕКТРА ШОВ"_s,
                                "marija dzomba curcic"_s, "Džomba"_s, "марија"_s, "ЏОМБА ЋУРЧИЋ"_s})
        EXPECT_EQ(titles(containing(pattern)), QStringList("Njegoš: Extra show"_s)) << pattern.toStdString();
    for (const auto& pattern : {"љубав"_s, "ЂОКЕ шајкаша"_s})
        EXPECT_EQ(titles(containing(pattern)), QStringList("Ljubav Đoke Šajkaša"_s)) << pattern.toStdString();
    EXPECT_TRUE(containing("ъ"_s).empty());
    TVEntry::setCyrillicDevice(false);
}

TEST_F(ShowQueriesTest, FindsABroadcastByItsAddress)
{
    store(one, {{"a"_s, 0, 10}, {"b"_s, 10, 20}});
    EXPECT_EQ(cached(one)->size(), 2u);   // behind the merge
    clock.advance(std::chrono::hours(1)); // finished shows are found as long as they are in the list
    const auto url = TVEntry::urlDigestFromChannel(one, testNow + std::chrono::minutes(10), "b"_s, "vidora"_s);
    listings->showWithURL(*URL::fromText(u"vidora://unknown"), [](Show) { FAIL(); });
    const Show found = answer<Show>([&](auto block) { listings->showWithURL(*url, std::move(block)); });
    EXPECT_EQ(found->entry->identificator(), "b"_s);
}

TEST_F(ShowQueriesTest, CompoundListingsAreGroupedByTheDaysOfTheDevice)
{
    device.iconNames.erase(two);
    device.iconNames[three] = "missing.png"_s;
    const auto shows = std::make_shared<ShowList>(*listOf(one, {{"a"_s, 0, 10}, {"b"_s, 509, 520}, {"c"_s, 510, 520}}));
    for (const ObjectId& channel : {two, three, channelId(9)})
        shows->push_back(TestShow{"hidden"_s, 0, 10}.show(channel));
    const CompoundListing listing =
        compound([&](auto block) { listings->compoundListingsWithShows(shows, priority, std::move(block)); });
    ASSERT_EQ(listing.dates.size(), 2);
    EXPECT_TRUE(listing.dates[0].contains("22"_s) && listing.dates[1].contains("23"_s));
    EXPECT_EQ(titles(listing.sections.at(listing.dates[0])), QStringList({"a"_s, "b"_s}));
    EXPECT_EQ(titles(listing.sections.at(listing.dates[1])), QStringList("c"_s));
    EXPECT_EQ(listing.iconNames, (std::unordered_map<ObjectId, QString>{{one, "icon.png"_s}}));
    EXPECT_EQ(listing.icons.at(one), folder.filePath("icon.png"_s));
}

/// Channels whose owner may go.
class GoingChannels final : public StoreDevice
{
public:
    std::optional<QString> iconName(const ObjectId&) const override
    {
        EXPECT_FALSE(areGone);
        if (!wereAsked.exchange(true))
            DispatchQueue::main().async([] {});
        return std::nullopt;
    }
    mutable std::atomic<bool> wereAsked = false;
    std::atomic<bool> areGone = false;
};

TEST_F(ShowQueriesTest, ACompoundListingThatIsBeingMadeEndsAheadOfTheStore)
{
    GoingChannels channels;
    auto store = std::make_unique<TVListings>(
        TVListings::Surroundings{clock, folder.path(), channels, icons, device, device, "vidora"_s});
    auto shows = std::make_shared<ShowList>();
    for (int number = 0; number < 20'000; ++number)
        shows->push_back(TestShow{"a"_s, 0, 10}.show(channelId(number)));
    store->compoundListingsWithShows(shows, priority, [](const CompoundListing&) {});
    DispatchQueue::runMain([&] { return channels.wereAsked.load(); });
    store.reset();
    channels.areGone = true;
    DispatchQueue::runMain([&] { return shows.use_count() == 1; });
}

TEST_F(ShowQueriesTest, IconsLieInTheirFolderOnly)
{
    QFile::copy(folder.filePath("icon.png"_s), folder.filePath(".hidden"_s));
    EXPECT_TRUE(icons.iconNamed("icon.png"_s));
    for (const QString& name : {""_s, "."_s, ".."_s, ".hidden"_s, "none.png"_s, "../icon.png"_s, "a/../icon.png"_s,
                                folder.filePath("icon.png"_s)})
        EXPECT_FALSE(icons.iconNamed(name)) << name.toStdString();
}

// The clocks of the device go back on 1 November 2026: that day has 25 hours.
TEST(LocalDays, FollowTheClockChanges)
{
    LocalDays days;
    const std::pair<const char16_t*, int> cases[] = {
        {u"2026-11-01T02:29:59.999Z", 23}, {u"2026-11-01T02:30:00Z", 0},  {u"2026-11-01T04:29:00Z", 1},
        {u"2026-11-01T04:30:00Z", 1},      {u"2026-11-02T03:29:59Z", 23}, {u"2026-11-02T03:30:00Z", 0},
    };
    for (const auto& [text, hour] : cases)
        EXPECT_EQ(days.hour(*instantFromIsoText(text)), hour) << QStringView(text).toString().toStdString();
    const QString day = days.dayKey(*instantFromIsoText(u"2026-11-01T02:30:00Z"));
    EXPECT_EQ(days.dayKey(*instantFromIsoText(u"2026-11-02T03:29:59Z")), day);
    EXPECT_NE(days.dayKey(*instantFromIsoText(u"2026-11-02T03:30:00Z")), day);
    EXPECT_NE(days.dayKey(*instantFromIsoText(u"2026-11-01T02:29:59Z")), day);
}

} // namespace
} // namespace vidora
