#include "support/TestDevice.h"

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

namespace vidora {
namespace {

using test::TestChannel;
using test::TestDevice;

const TestChannel one{QStringLiteral("58f4ded60befe78cb3360001"), QStringLiteral("One"), {}};
const TestChannel two{QStringLiteral("58f4ded60befe78cb3360002"), QStringLiteral("Two"), {}};

TestChannel with(TestChannel channel, const QStringList& sources)
{
    channel.sources = sources;
    return channel;
}

const QString feedN = QStringLiteral("http://n.example/epg.xml");
const QString feedTvpc = QStringLiteral("http://tvpc.example/guide.xml");

// Five shows of an hour each for every channel, the first of them on air at noon.
QByteArray guide(const QStringList& channels, const QString& title, const QString& date = QStringLiteral("20261122"))
{
    const auto time = [&](int hour) { return QString(date + QString::number(hour) + QStringLiteral("0000 +0000")); };
    QString xml = QStringLiteral("<tv>");
    for (const QString& channel : channels) {
        for (int i = 0; i < 5; ++i)
            xml += QStringLiteral("<programme channel=\"%1\" start=\"%2\" stop=\"%3\"><title>%4 %5</title></programme>")
                       .arg(channel, time(12 + i), time(13 + i), title)
                       .arg(i);
    }
    return xml.toUtf8() + "</tv>";
}

test::ScriptedSession::Answer xml(const QByteArray& body)
{
    return {200, body, "text/xml; charset=utf-8", {}};
}

class UpdateCycleTest : public ::testing::Test
{
protected:
    void start(const std::vector<TestChannel>& channels)
    {
        device.setCatalogue(channels);
        device.launch();
        device.select(channels);
    }
    TestDevice device;
};

TEST_F(UpdateCycleTest, fetchesAFeedOnceForAllItsChannels)
{
    const auto first = with(one, {QStringLiteral("n.a")});
    const auto second = with(two, {QStringLiteral("n.b")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a"), QStringLiteral("b")}, QStringLiteral("N"))));
    start({first, second});
    device.update();
    EXPECT_EQ(device.session.takeRequests(), QStringList{feedN});
    EXPECT_EQ(device.titles(first).value(0), u"N 0");
    EXPECT_EQ(device.titles(second).size(), 5);

    device.update();
    EXPECT_TRUE(device.session.takeRequests().isEmpty()) << "fresh lists are not fetched again";
}

TEST_F(UpdateCycleTest, handsTheChannelsOfALargeFeedOverInSmallPieces)
{
    struct Deliveries final : UpdateObserver
    {
        void passStarted(std::size_t) override {}
        void fetching(const std::vector<ObjectId>&) override {}
        void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override
        {
            largest = std::max(largest, lists.size());
            for (const auto& [channel, shows] : lists)
                channels += shows.size() == 4;
        }
        void deliveryEnded() override { channelsAtEnd.push_back(channels); }
        void passEnded(std::size_t, const std::vector<ObjectId>&) override { isOver = true; }
        std::size_t largest = 0;
        int channels = 0;
        std::vector<int> channelsAtEnd;
        bool isOver = false;
    } deliveries;
    std::vector<TestChannel> channels;
    QStringList ids;
    for (int i = 0; i < 50; ++i) {
        ids << QString::number(i);
        channels.push_back({QStringLiteral("58f4ded60befe78cb336%1").arg(i, 4, 10, QLatin1Char('0')),
                            ids.back(),
                            {QStringLiteral("n.") + ids.back()}});
    }
    device.session.answer(feedN, xml(guide(ids, QStringLiteral("N"))));
    start(channels);
    device.delegate->setUpdateObserver(&deliveries);
    device.delegate->checkAndUpdateAllChannels();
    DispatchQueue::runMain([&] { return deliveries.isOver; });
    device.delegate->setUpdateObserver(nullptr);
    EXPECT_EQ(deliveries.channels, 50);
    EXPECT_LE(deliveries.largest, 16u);
    EXPECT_EQ(deliveries.channelsAtEnd, std::vector<int>{50});
}

TEST_F(UpdateCycleTest, passesOverTheSecondSourceOfAChannelThatWasDelivered)
{
    const auto served = with(one, {QStringLiteral("n.a"), QStringLiteral("tvpc.a")});
    const auto fallback = with(two, {QStringLiteral("n.missing"), QStringLiteral("tvpc.b")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("N"))));
    device.session.answer(feedTvpc, xml(guide({QStringLiteral("a"), QStringLiteral("b")}, QStringLiteral("T"))));
    start({served, fallback});
    device.update();
    const QStringList both{feedN, feedTvpc};
    EXPECT_EQ(device.session.takeRequests(), both);
    EXPECT_EQ(device.titles(served).value(0), u"N 0");
    EXPECT_EQ(device.titles(fallback).value(0), u"T 0");
    EXPECT_TRUE(device.failed.empty());
}

/// Counts what is fetched, from the cache as well, until so many passes are over.
struct Passes final : UpdateObserver
{
    explicit Passes(TestDevice& observed)
        : device(observed)
    {
        device.delegate->setUpdateObserver(this);
    }
    ~Passes() override { device.delegate->setUpdateObserver(nullptr); }
    void passStarted(std::size_t channels) override { wanted.push_back(channels); }
    void fetching(const std::vector<ObjectId>&) override { ++fetches; }
    void delivered(const std::unordered_map<ObjectId, ShowList>&) override {}
    void passEnded(std::size_t, const std::vector<ObjectId>&) override { ++ended; }
    void wait(int passes)
    {
        DispatchQueue::runMain([&] { return ended == passes; });
    }
    TestDevice& device;
    std::vector<std::size_t> wanted;
    int fetches = 0, ended = 0;
};

TEST_F(UpdateCycleTest, aSecondRequestFindsNothingLeftToDo)
{
    const auto first = with(one, {QStringLiteral("n.a")});
    const auto second = with(two, {QStringLiteral("tvpc.b")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("N"))));
    device.session.answer(feedTvpc, xml(guide({QStringLiteral("b")}, QStringLiteral("T"))));
    start({first, second});
    Passes passes(device);
    device.session.onRequest = [&](const URLRequest&) {
        DispatchQueue::main().async([&] { device.delegate->checkAndUpdateAllChannels(); });
    };
    device.delegate->checkAndUpdateAllChannels();
    device.delegate->checkAndUpdateAllChannels();
    passes.wait(4);
    EXPECT_EQ(passes.wanted, (std::vector<std::size_t>{2, 0, 0, 0}));
    EXPECT_EQ(passes.fetches, 2);
}

// The user refreshes a channel between its first source, which has delivered, and its second.
TEST_F(UpdateCycleTest, aRefreshBesideAPassKeepsTheFirstSource)
{
    const QString silent = QStringLiteral("https://dolce.example/program/x");
    const auto refreshed = with(one, {QStringLiteral("n.a"), QStringLiteral("tvpc.a")});
    const auto other = with(two, {QStringLiteral("dolce-sport.x")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("N"))));
    device.session.answer(feedTvpc, xml(guide({QStringLiteral("a")}, QStringLiteral("T"))));
    start({refreshed, other});
    Passes passes(device);
    bool isRefreshed = false;
    device.session.onRequest = [&](const URLRequest& request) {
        if (request.url.text() != silent || std::exchange(isRefreshed, true))
            return;
        device.delegate->channels().channelWithChannelId(ObjectId::initWithHex(refreshed.id))->unload();
        DispatchQueue::main().async([&] { device.delegate->checkAndUpdateAllChannels(); });
    };
    device.delegate->checkAndUpdateAllChannels();
    passes.wait(2);
    EXPECT_TRUE(isRefreshed);
    EXPECT_FALSE(device.session.takeRequests().contains(feedTvpc));
    EXPECT_EQ(device.titles(refreshed).value(0), u"N 0");
    EXPECT_EQ(passes.wanted, (std::vector<std::size_t>{2, 2})) << "the refresh has a pass of its own";
}

TEST_F(UpdateCycleTest, anEndInTheMidstOfAPassKeepsWhatCameAndAsksForNoMore)
{
    const auto first = with(one, {QStringLiteral("n.a")});
    const auto second = with(two, {QStringLiteral("tvpc.b")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("N"))));
    start({first, second});
    device.session.onRequest = [&](const URLRequest&) { device.delegate->endUpdates(); };
    {
        Passes passes(device);
        device.delegate->checkAndUpdateAllChannels();
        device.delegate->checkAndUpdateAllChannels();
        passes.wait(2);
        EXPECT_EQ(passes.wanted, (std::vector<std::size_t>{2, 0})) << "who waits for a pass is told of its end";
    }
    device.quit();
    EXPECT_EQ(device.session.takeRequests(), QStringList{feedN});
    device.launch();
    EXPECT_EQ(device.titles(first).size(), 5);
    EXPECT_TRUE(device.titles(second).isEmpty());
}

TEST_F(UpdateCycleTest, keepsWhatItHasWhenEverySourceFails)
{
    const auto channel = with(one, {QStringLiteral("n.a"), QStringLiteral("tvpc.a")});
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("old"))));
    start({channel});
    device.update();
    device.session.takeRequests();
    device.quit();

    device.clock.advance(std::chrono::hours(2) + Seconds(1)); // three shows are left: too few, however young the list
    device.session.answer(feedN, {500, "an error page", "text/html", {}});
    device.launch();
    device.update();
    EXPECT_EQ(device.titles(channel).size(), 3);
    EXPECT_EQ(device.failed, std::vector<ObjectId>{ObjectId::initWithHex(channel.id)});
    const QStringList attempts{feedN, feedN, feedTvpc, feedTvpc};
    EXPECT_EQ(device.session.takeRequests(), attempts) << "two attempts at each source";
}

TEST_F(UpdateCycleTest, followsTheOneRedirectInTheSecondAttempt)
{
    const auto channel = with(one, {QStringLiteral("n.a")});
    const QString moved = QStringLiteral("http://elsewhere.example/epg");
    device.session.answer(feedN, {302, {}, "text/html", moved.toLatin1()});
    device.session.answer(moved, xml(guide({QStringLiteral("a")}, QStringLiteral("moved"))));
    start({channel});
    device.update();
    const QStringList both{feedN, moved};
    EXPECT_EQ(device.session.takeRequests(), both);
    EXPECT_EQ(device.titles(channel).value(0), u"moved 0");
}

TEST_F(UpdateCycleTest, readsAnOldListAgainAndLeavesAYoungOne)
{
    const auto channel = with(one, {QStringLiteral("n.a")});
    QByteArray week = guide({QStringLiteral("a")}, QStringLiteral("Sunday"));
    week.replace("</tv>", "") +=
        guide({QStringLiteral("a")}, QStringLiteral("Tuesday"), QStringLiteral("20261124")).mid(4);
    device.session.answer(feedN, xml(week));
    start({channel});
    device.update();
    device.session.takeRequests();

    device.clock.advance(std::chrono::hours(24));
    device.update();
    EXPECT_TRUE(device.session.takeRequests().isEmpty()) << "exactly as old as the interval is not older";
    device.clock.advance(Seconds(1));
    device.update();
    EXPECT_EQ(device.session.takeRequests(), QStringList{feedN});
}

TEST_F(UpdateCycleTest, aDocumentThatMakesAScannerThrowLeavesTheListAndTheOtherGroups)
{
    device.endpoints.cinestar.host = QStringLiteral("cinestar.example.");
    const QString firstDay = QStringLiteral("https://cinestar.example.rs/raspored/");
    const auto broken = with(one, {QStringLiteral("cinestar.rs.x"), QStringLiteral("tvpc.a")});
    const auto whole = with(two, {QStringLiteral("n.b")});
    device.session.answer(firstDay, {200, "<html>one of seven days</html>", "text/html", {}});
    device.session.answer(feedN, xml(guide({QStringLiteral("b")}, QStringLiteral("N"))));
    device.session.answer(feedTvpc, xml(guide({QStringLiteral("a")}, QStringLiteral("T"))));
    start({broken, whole});
    device.update();
    EXPECT_EQ(device.titles(whole).size(), 5);
    EXPECT_TRUE(device.titles(broken).isEmpty());
    EXPECT_TRUE(device.delegate->channels().channelWithChannelId(ObjectId::initWithHex(broken.id))->loading())
        << "what made a parse fail would make the next one fail as well";
    device.session.takeRequests();
    device.update();
    EXPECT_TRUE(device.session.takeRequests().isEmpty());
}

TEST_F(UpdateCycleTest, readsAChannelOnceFromASourceThatItNamesTwice)
{
    const auto channel = with(one, {QStringLiteral("n.a"), QStringLiteral("n.a")});
    struct Fetches final : UpdateObserver
    {
        void passStarted(std::size_t) override {}
        void fetching(const std::vector<ObjectId>& channels) override { asked = channels; }
        void delivered(const std::unordered_map<ObjectId, ShowList>&) override {}
        void passEnded(std::size_t, const std::vector<ObjectId>&) override { isOver = true; }
        std::vector<ObjectId> asked;
        bool isOver = false;
    } fetches;
    start({channel});
    device.delegate->setUpdateObserver(&fetches);
    device.delegate->checkAndUpdateAllChannels();
    DispatchQueue::runMain([&] { return fetches.isOver; });
    device.delegate->setUpdateObserver(nullptr);
    EXPECT_EQ(fetches.asked, std::vector<ObjectId>{ObjectId::initWithHex(channel.id)});
}

TEST_F(UpdateCycleTest, listsAndAgesSurviveARestart)
{
    const auto channel = with(one, {QStringLiteral("n.a")});
    const auto id = ObjectId::initWithHex(channel.id);
    device.session.answer(feedN, xml(guide({QStringLiteral("a")}, QStringLiteral("N"))));
    start({channel});
    device.update();
    device.session.takeRequests();
    device.quit();

    const Instant loaded = device.clock.now() - std::chrono::hours(23);
    {
        QFile list(device.folders.caches + QLatin1Char('/') + TVListings::listingsFileFromChannelIdentificator(id));
        ASSERT_TRUE(list.open(QIODevice::ReadWrite | QIODevice::ExistingOnly));
        list.setFileTime(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(loaded)), QFile::FileModificationTime);
    }
    device.launch();
    EXPECT_EQ(device.titles(channel).size(), 5);
    EXPECT_EQ(device.delegate->channels().channelWithChannelId(id)->timeLoaded(), loaded);
    device.update();
    EXPECT_TRUE(device.session.takeRequests().isEmpty());
    device.clock.advance(std::chrono::hours(1) + Seconds(1));
    device.update();
    EXPECT_EQ(device.session.takeRequests(), QStringList{feedN});
}

TEST_F(UpdateCycleTest, aChannelThatLeftTheCatalogueLeavesTheSelection)
{
    const auto kept = with(one, {QStringLiteral("n.a")});
    const auto gone = with(two, {QStringLiteral("n.b")});
    start({kept, gone});
    device.quit();
    device.setCatalogue({kept});
    device.launch();
    EXPECT_EQ(device.delegate->channels().selected(), std::vector<ObjectId>{ObjectId::initWithHex(kept.id)});
}

} // namespace
} // namespace vidora
