#include "store/ShowArchive.h"
#include "store/StoreFixture.h"

#include <QFile>

#include <ctime>
#include <thread>

namespace vidora {
namespace {

const ObjectId one = channelId(1), two = channelId(2), three = channelId(3);

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<qsizetype>(size));
}

class TVListingsTest : public StoreTest
{
protected:
    void write(const ObjectId& channel, const std::vector<TestShow>& shows)
    {
        ASSERT_TRUE(ShowArchive::archiveRootObject(*listOf(channel, shows), file(channel)));
    }
    QStringList written(const ObjectId& channel) { return titles(ShowArchive::unarchiveObjectWithFile(file(channel))); }
};

TEST_F(TVListingsTest, FileNames)
{
    EXPECT_EQ(TVListings::listingsFileFromChannelIdentificator(ObjectId::popular()),
              "59e1d5ed80bcfcbc75d89fae.plist"_s);
}

TEST_F(TVListingsTest, LoadsFilesCutsThePastAndUnloadsTheRest)
{
    const ObjectId missing = channelId(4), damaged = channelId(5), unselected = channelId(6);
    device.selection = {one, two, three, missing, damaged};
    giveIcons({one, two, three});
    // Only the head is cut: "late past" stands behind a show that is not over.
    write(one, {{"ends now"_s, -60, 0}, {"no end"_s, -50, {}}, {"on air"_s, -30, 30}, {"late past"_s, -20, -10}});
    write(two, {{"next"_s, 10, 20}, {"later"_s, 20, 30}});
    write(three, {{"over"_s, -60, -30}, {"just over"_s, -30, 0}});
    write(unselected, {{"unseen"_s, 0, 30}});
    write(ObjectId::popular(), {{"old hit"_s, -60, -30}});
    QFile broken(file(damaged));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("\x81\x82") == 2);
    broken.close();

    start();
    EXPECT_EQ(titles(*cached(one)), QStringList("on air"_s)) << "a reader filters every show";
    EXPECT_EQ(titles(*cached(two)), QStringList({"next"_s, "later"_s}));
    EXPECT_TRUE(cached(three)->empty() && cached(missing)->empty() && cached(unselected)->empty());
    EXPECT_EQ(all(), QStringList({"on air"_s, "next"_s, "later"_s}));
    EXPECT_EQ(device.unloaded, (std::set<ObjectId>{three, missing, damaged})) << "the popular list is no channel";
    EXPECT_EQ(listings->popularShows(), nullptr);
    EXPECT_EQ(device.alarmSyncs, 1);
}

TEST_F(TVListingsTest, CommitsWhatWasScheduledWithoutThePast)
{
    device.selection = {one, two, three};
    write(two, {{"from file"_s, -60, 5}});
    start();
    store(one, {{"ends now"_s, -60, 0}, {"on air"_s, -30, 30}});
    store(two, {{"short"_s, 0, 10}});
    store(two, {{"longer"_s, 0, 20}}); // replaces, is no merge
    listings->storeList(three, listOf(three, {{"unscheduled"_s, 0, 30}}));
    EXPECT_TRUE(listings->isScheduledForSaving(one));
    EXPECT_FALSE(listings->isScheduledForSaving(three));
    EXPECT_EQ(device.loaded, (std::map<ObjectId, Instant>{{one, testNow}, {two, testNow}}));
    EXPECT_EQ(written(one), QStringList()) << "nothing is written before a commit";

    commit();
    EXPECT_EQ(written(one), QStringList("on air"_s));
    EXPECT_EQ(written(two), QStringList("longer"_s));
    EXPECT_EQ(written(three), QStringList());
    EXPECT_FALSE(listings->isScheduledForSaving(one));
    EXPECT_EQ(titles(*cached(one)), QStringList({"ends now"_s, "on air"_s})) << "the list in memory stays as it is";

    clock.advance(std::chrono::minutes(20)); // a list that is all past isn't written: the old file stays
    listings->addToSaveSchedule(two);
    commit();
    EXPECT_EQ(written(two), QStringList("longer"_s));

    start();
    EXPECT_EQ(titles(*cached(one)), QStringList("on air"_s));
    EXPECT_TRUE(cached(two)->empty());
    EXPECT_TRUE(device.unloaded.contains(two));
}

TEST_F(TVListingsTest, CommitsAtOnceInTheBackground)
{
    start();
    device.inBackground = true;
    store(one, {{"on air"_s, -30, 30}});
    DispatchQueue::runMain([&] { return !written(one).isEmpty(); });
    listings->listingsStored();
    DispatchQueue::runMain([&] { return device.settingsSyncs == 1; });
    EXPECT_FALSE(device.synchronized);
    EXPECT_EQ(device.alarmSyncs, 2);
    commit();
}

// A list that is still on its way into the dictionary when its channel is scheduled must not be passed over.
TEST_F(TVListingsTest, CommitsListsThatAreOnTheirWay)
{
    start();
    for (int i = 1; i < 100; ++i) {
        listings->storeList(one, listOf(one, {{QString::number(i), 0, 30}}));
        listings->commitFiles();
        listings->storeList(one, listOf(one, {{QString::number(-i), 0, 30}}));
        listings->addToSaveSchedule(one);
        commit();
        ASSERT_EQ(written(one), QStringList(QString::number(-i)));
    }
}

// A pass over many channels announces each of them. By processor time within one run, where to look through all lists
// at each would cost thirty times as much.
TEST_F(TVListingsTest, AnnouncesEachOfManyListsForNextToNothing)
{
    constexpr int channels = 500;
    std::vector<SharedShowList> lists;
    for (int channel = 0; channel < channels; ++channel) {
        std::vector<TestShow> shows;
        for (int i = 0; i < 100; ++i)
            shows.push_back({"show"_s, i * 30 + channel % 30, i * 30 + 30 + channel % 30});
        lists.push_back(listOf(channelId(channel), shows));
        giveIcons({channelId(channel)});
    }
    start();
    const auto processorTime = [&](bool announceEach) {
        const std::clock_t begin = std::clock();
        for (int channel = 0; channel < channels; ++channel) {
            listings->storeList(channelId(channel), lists[std::size_t(channel)]);
            if (announceEach)
                listings->saveAllShows();
        }
        listings->saveAllShows();
        EXPECT_EQ(all().size(), 2000);
        return std::clock() - begin;
    };
    const std::clock_t once = processorTime(false);
    EXPECT_LT(processorTime(true), 10 * once);
}

TEST_F(TVListingsTest, MergesAllChannelsByStart)
{
    giveIcons({one, two});
    start();
    store(one, {{"a"_s, -30, 10}, {"ends now"_s, -20, 0}, {"c"_s, 10, 40}, {"no end"_s, 20, {}}});
    store(two, {{"b"_s, 0, 20}, {"d"_s, 20, 40}});
    listings->setPopularShows(listOf(one, {{"hit"_s, 0, 20}}));
    listings->saveAllShows();
    EXPECT_EQ(all(), QStringList({"a"_s, "b"_s, "c"_s, "d"_s}));
    EXPECT_TRUE(refreshed.empty());

    listings->removeListingsForChannel(one);
    listings->removeListingsForChannel(channelId(9));
    EXPECT_EQ(all(), QStringList({"b"_s, "d"_s}));
    ASSERT_EQ(refreshed.size(), 2u) << "also for a channel without a list";
    EXPECT_EQ(titles(*refreshed.back()), QStringList({"b"_s, "d"_s}));

    clock.advance(std::chrono::hours(1));
    listings->updatePopularList();
    EXPECT_EQ(all(), QStringList());
    EXPECT_TRUE(refreshed.back()->empty());
}

TEST_F(TVListingsTest, KeepsThePopularList)
{
    start();
    const SharedShowList hits = listOf(one, {{"hit"_s, 0, 20}});
    listings->setPopularShows(nullptr);
    cached(one); // behind the load
    listings->setPopularShows(hits);
    EXPECT_EQ(titles(*listings->popularShows()), QStringList("hit"_s));
    commit();
    EXPECT_EQ(written(ObjectId::popular()), QStringList("hit"_s));
    EXPECT_TRUE(device.loaded.empty());

    listings->setPopularShows(std::make_shared<const ShowList>(*hits));
    EXPECT_FALSE(listings->isScheduledForSaving(ObjectId::popular())) << "an equal list changes nothing";
    listings->setPopularShows(std::make_shared<const ShowList>());
    EXPECT_TRUE(listings->popularShows()->empty());
    EXPECT_TRUE(listings->isScheduledForSaving(ObjectId::popular()));
}

TEST_F(TVListingsTest, StoresADescriptionWithItsVeryBroadcast)
{
    start();
    auto list =
        std::make_shared<ShowList>(*listOf(one, {{"same"_s, 0, 10, {}}, {"same"_s, 0, 10}, {"later"_s, 10, 20}}));
    listings->storeList(one, list);
    auto extra = std::make_shared<TVEntrySupplementalData>();
    const Pictures pictures{*URL::fromText(u"http://p.example/1")};

    listings->updateDescriptionForEntry((*list)[1]->entry, extra, pictures);
    listings->updateDescriptionForEntry((*list)[0]->entry, extra, Pictures());
    const SharedShowList first = cached(one);
    EXPECT_EQ((*first)[0]->count(), 3);
    EXPECT_EQ((*first)[0]->categories, 0u) << "an element without categories gets the mask 0";
    EXPECT_EQ((*first)[1]->pictures, pictures);
    EXPECT_EQ((*first)[2], (*list)[2]) << "what doesn't change is shared";
    EXPECT_EQ((*list)[1]->count(), 2) << "a reader's list stays as it is";

    auto newer = std::make_shared<TVEntrySupplementalData>();
    listings->updateDescriptionForEntry((*list)[1]->entry, newer, std::nullopt);
    EXPECT_EQ((*cached(one))[1]->extra, newer);
    EXPECT_EQ((*cached(one))[1]->pictures, pictures) << "pictures stay where none are given";
    EXPECT_TRUE(listings->isScheduledForSaving(one));

    commit();
    const SharedShowList before = cached(one);
    for (const int start : {0, 30}) { // equal to the eye, but another object; in the list's midst and behind its end
        listings->updateDescriptionForEntry(TestShow{"same"_s, start, 10}.show(one)->entry, newer, pictures);
        listings->updateDescriptionForEntry(TestShow{"same"_s, start, 10}.show(two)->entry, newer, pictures);
    }
    EXPECT_EQ(*cached(one), *before);
    EXPECT_FALSE(listings->isScheduledForSaving(one));
}

TEST_F(TVListingsTest, StoresAFilmLinkWithEveryBroadcastOfTheFilm)
{
    start();
    auto list = std::make_shared<ShowList>(*listOf(one, {{"film"_s, 0, 10, 1},
                                                         {"film"_s, 10, 20, 2},
                                                         {"film"_s, 20, 30, 1},
                                                         {"other"_s, 30, 40, 1},
                                                         {"film"_s, 40, 50, {}}}));
    auto extra = std::make_shared<TVEntrySupplementalData>();
    extra->details = "1999"_s;
    listings->storeList(one, list);
    listings->updateDescriptionForEntry((*list)[2]->entry, extra, Pictures{*URL::fromText(u"http://p.example/1")});
    const std::optional<URL> link = URL::fromText(u"http://imdb.example/1");
    listings->updateIMDBForChannel(one, "film"_s, 1, link, std::nullopt);
    listings->updateIMDBForChannel(two, "film"_s, 1, link, std::nullopt);

    const ShowList shows = *cached(one);
    for (const std::size_t i : {1u, 3u, 4u})
        EXPECT_EQ(shows[i], (*list)[i]);
    EXPECT_EQ(shows[0]->extra->imdbURL, link);
    EXPECT_EQ(shows[0]->count(), 3);
    EXPECT_EQ(shows[2]->extra->imdbURL, link);
    EXPECT_EQ(shows[2]->extra->details, "1999"_s);
    EXPECT_EQ(shows[2]->count(), 4);
    EXPECT_FALSE(extra->imdbURL) << "what readers hold doesn't change";
    EXPECT_FALSE(listings->isScheduledForSaving(two));

    const Pictures pictures{*URL::fromText(u"http://p.example/2")};
    listings->updateIMDBForChannel(one, "film"_s, 1, link, pictures);
    for (const std::size_t i : {0u, 2u})
        EXPECT_EQ((*cached(one))[i]->pictures, pictures);
}

// What turns out to be damaged when it is looked at costs a refetch of that channel.
TEST_F(TVListingsTest, DropsAListThatTurnsOutToBeDamaged)
{
    device.selection = {one, two};
    giveIcons({one, two});
    std::vector<TestShow> shows;
    for (int i = 0; i < 1000; ++i)
        shows.push_back({"show"_s, i, i + 1});
    write(one, shows);
    write(two, {{"whole"_s, 0, 30}});
    start();
    cached(two); // behind the load
    EXPECT_TRUE(device.unloaded.empty());
    QFile::resize(file(one), QFile(file(one)).size() / 2);
    EXPECT_LT(all().size(), 1000);
    // It goes behind the query that noticed, whose answer may be here first.
    constexpr int mostLooks = 1000;
    for (int look = 0; look < mostLooks && all() != QStringList("whole"_s); ++look)
        continue;
    EXPECT_EQ(all(), QStringList("whole"_s));
    EXPECT_EQ(device.unloaded, std::set<ObjectId>{one});
    EXPECT_TRUE(cached(one)->empty());
}

TEST_F(TVListingsTest, GivesTheMemoryOfAListBackOnceItIsInItsFile)
{
    start();
    store(one, {{"over soon"_s, -30, 1}, {"a"_s, 0, 30}, {"b"_s, 30, 60}});
    const Show held = cached(one)->at(1);
    clock.advance(std::chrono::minutes(1));
    commit();
    EXPECT_EQ(cached(one)->at(1), held) << "a held show stays the same object";
    EXPECT_EQ(titles(*cached(one)), QStringList({"over soon"_s, "a"_s, "b"_s}));
    QFile::resize(file(one), 0);
    EXPECT_EQ(titles(*cached(one)), QStringList("a"_s)) << "the others lie in the file alone";
}

// Readers and writers at once; what this is for is a run under ThreadSanitizer.
TEST_F(TVListingsTest, ReadersAndWritersAtOnce)
{
    device.selection = {one, two};
    giveIcons({one, two});
    start();
    std::atomic<int> answers = 0;
    const auto write = [&](const ObjectId& channel) {
        for (int i = 0; i < 50; ++i) {
            const SharedShowList list = listOf(channel, {{"a"_s, 0, 30}, {QString::number(i), 30, 60}});
            listings->storeList(channel, list);
            listings->addToSaveSchedule(channel);
            listings->saveAllShows();
            listings->updateDescriptionForEntry((*list)[0]->entry, std::make_shared<TVEntrySupplementalData>(), {});
            listings->setPopularShows(list);
            listings->commitFiles();
        }
    };
    const auto read = [&] {
        for (int i = 0; i < 50; ++i) {
            listings->popularShows();
            listings->onAirShowsWithQueue(DispatchQueue::main(), [&](auto) { ++answers; });
            listings->showWithURL(*URL::fromText(u"vidora://0"), [](auto) {});
            listings->showScheduleForTitle("a"_s, QualityOfService::Utility, [&](const auto&) { ++answers; });
            listings->showsContainingPattern("a"_s, [&](auto) { DispatchQueue::main().async([&] { ++answers; }); });
        }
    };
    std::vector<std::thread> threads;
    threads.emplace_back(write, one);
    threads.emplace_back(write, two);
    threads.emplace_back(read);
    threads.emplace_back(read);
    DispatchQueue::runMain([&] { return answers == 300; });
    for (std::thread& thread : threads)
        thread.join();
    commit();
    EXPECT_EQ(all(), QStringList({"a"_s, "a"_s, "49"_s, "49"_s}));
    EXPECT_EQ(written(two), QStringList({"a"_s, "49"_s}));
}

} // namespace
} // namespace vidora
