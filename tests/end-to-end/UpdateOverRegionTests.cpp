#include "RegionDevice.h"
#include "sample-region/RegionChannel.h"

#include <gmock/gmock.h>

namespace vidora {
namespace {

using test::RegionDevice;
using test::SourcedChannel;
using ::testing::ElementsAre;
using ::testing::Gt;
using ::testing::IsEmpty;
using ::testing::SizeIs;

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Every source of every channel of the region as a channel of its own, so that nothing falls back on anything.
std::vector<SourcedChannel> everySource()
{
    std::vector<SourcedChannel> channels;
    for (const region::RegionChannel& channel : region::regionChannels()) {
        for (const std::string_view source : channel.sources) {
            if (source.rfind("http://", 0) == 0)
                continue; // at a port that another region on this machine may have
            channels.push_back({text(channel.title) + QLatin1String(" from ") + text(source),
                                {text(source)},
                                channel.language.empty() ? QString() : text(channel.language)});
        }
    }
    return channels;
}

SourcedChannel channelOf(const QStringList& sources)
{
    return {QStringLiteral("channel of ") + sources.front(), sources, QStringLiteral("sr")};
}

const SourcedChannel northThenSouth = channelOf({QStringLiteral("n.vrabac.rs"), QStringLiteral("s.vrabac.rs")});
const SourcedChannel north = channelOf({QStringLiteral("n.lipa1.rs")});
const SourcedChannel south = channelOf({QStringLiteral("s.lipa1.rs")});
const SourcedChannel packed = channelOf({QStringLiteral("r.RS1.LipaPlus.rs")});
const SourcedChannel daily = channelOf({QStringLiteral("=5101")});

TEST(UpdateOverRegion, EverySourceOfEveryFamilyDelivers)
{
    const auto channels = everySource();
    RegionDevice device(channels);
    EXPECT_EQ(device.update(), QStringList());
    for (const SourcedChannel& channel : channels)
        EXPECT_GT(device.shows(channel).size(), 5U) << channel.title.toStdString();
    EXPECT_THAT(device.sleeper.slept(), IsEmpty());
    // However many channels a feed serves, it is fetched once.
    for (const char* feed : {"n/epg.xml", "s/losmij/epg.xml.gz", "tvpc/guide/tvpc.xml", "r.0/rytecRS1.xz"})
        EXPECT_THAT(device.requests(feed), ElementsAre(feed));
}

TEST(UpdateOverRegion, AFaultyFirstSourceIsReplacedByTheSecond)
{
    struct Case
    {
        const char* fault;
        std::size_t asked;
        std::size_t pauses;
    };
    for (const Case& c : {Case{"n/*=status:503", 2, 1}, Case{"n/*=empty", 2, 1}, Case{"n/*=cut", 2, 1},
                          Case{"n/*=charset:x-none", 1, 0}, Case{"n/epg.xml=redirect:/nowhere", 1, 1},
                          Case{"n/*=missing:<programme", 1, 0}}) {
        RegionDevice device({northThenSouth});
        EXPECT_EQ(device.update({c.fault}), QStringList()) << c.fault;
        EXPECT_THAT(device.shows(northThenSouth), SizeIs(Gt(10U))) << c.fault;
        EXPECT_THAT(device.requests("n/epg.xml"), SizeIs(c.asked)) << c.fault;
        EXPECT_EQ(device.sleeper.slept(), std::vector<Milliseconds>(c.pauses, Seconds(1))) << c.fault;
        EXPECT_THAT(device.requests("s/"), SizeIs(1)) << c.fault;
    }
}

TEST(UpdateOverRegion, AFirstSourceThatDeliversSparesTheSecond)
{
    RegionDevice device({northThenSouth});
    device.update();
    EXPECT_THAT(device.requests(), ElementsAre("n/epg.xml"));
}

TEST(UpdateOverRegion, TheSecondAttemptMendsAnEmptyAnswerAndFollowsARedirect)
{
    RegionDevice device({north});
    device.sleeper.onSleep = [&](Milliseconds) { device.region.server.setFaults({}); };
    EXPECT_EQ(device.update({"n/epg.xml=empty"}), QStringList());
    EXPECT_THAT(device.requests(), ElementsAre("n/epg.xml", "n/epg.xml"));

    RegionDevice other({north});
    EXPECT_EQ(other.update({"n/epg.xml=redirect:/epg.xml?moved"}), QStringList());
    EXPECT_THAT(other.requests(), ElementsAre("n/epg.xml", "n/epg.xml?moved"));
    EXPECT_THAT(other.shows(north), SizeIs(Gt(10U)));
}

TEST(UpdateOverRegion, AFailingPageInTheMiddlePassesTheEarlierOnes)
{
    RegionDevice device({daily});
    EXPECT_EQ(device.update({"=*date=26.11.2026.=status:500"}), QStringList());
    EXPECT_THAT(device.requests(), SizeIs(4 + 2)) << "four days, and two attempts at the fifth";
    const ShowList shows = device.shows(daily);
    ASSERT_THAT(shows, SizeIs(Gt(10U)));
    EXPECT_GT(*shows.back()->entry->dateTime(), instantFromIsoText(QStringLiteral("2026-11-25T12:00:00Z")).value());
    EXPECT_LT(*shows.back()->entry->dateTime(), instantFromIsoText(QStringLiteral("2026-11-26T12:00:00Z")).value());
}

TEST(UpdateOverRegion, NothingOfADamagedFileIsUsed)
{
    struct Case
    {
        SourcedChannel channel;
        const char* fault;
    };
    // Without the two letters that end an xz file it is cut off; without its first bytes a gzip file is none.
    for (const Case& c : {Case{packed, "r.0/*=missing:YZ"}, Case{south, "s/*=missing:\x1f\x8b"}}) {
        RegionDevice device({c.channel});
        device.update();
        const ShowList before = device.shows(c.channel);
        device.region.clock.advance(dayStep + Seconds(1));
        const ShowList later = device.shows(c.channel);
        EXPECT_EQ(device.update({c.fault}), QStringList{c.channel.title});
        EXPECT_EQ(device.shows(c.channel), later) << c.fault;
        EXPECT_LT(later.size(), before.size());

        RegionDevice fresh({c.channel});
        fresh.update({c.fault});
        EXPECT_THAT(fresh.shows(c.channel), IsEmpty()) << c.fault;
    }
}

TEST(UpdateOverRegion, NoFaultCostsAChannelItsEarlierList)
{
    const auto channels = everySource();
    RegionDevice device(channels);
    device.update();
    device.region.clock.advance(dayStep + Seconds(1));
    std::vector<ShowList> before;
    for (const SourcedChannel& channel : channels)
        before.push_back(device.shows(channel));
    for (const char* fault :
         {"*=status:500", "*=empty", "*=cut", "*=cut:0", "*=charset:x-none", "*=redirect:/nowhere", "*=missing:<"}) {
        device.delegate->applicationDidReceiveMemoryWarning(); // what the fault before left in the cache is no answer
        const bool isPage = std::string_view(fault) == "*=charset:x-none" || std::string_view(fault) == "*=missing:<";
        if (!isPage) {
            EXPECT_THAT(device.update({fault}), SizeIs(static_cast<int>(channels.size()))) << fault;
        } else {
            device.update({fault}); // files packed in themselves name no character set, and have no such text
        }
        for (std::size_t i = 0; i < channels.size(); ++i) {
            const ShowList after = device.shows(channels[i]);
            if (isPage)
                EXPECT_GE(after.size(), std::min<std::size_t>(before[i].size(), 5)) << fault << i;
            else
                EXPECT_TRUE(after == before[i]) << fault << channels[i].title.toStdString();
        }
    }
    device.delegate->applicationDidReceiveMemoryWarning();
    EXPECT_EQ(device.update(), QStringList()) << "all is well again";
}

} // namespace
} // namespace vidora
