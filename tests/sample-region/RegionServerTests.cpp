#include "Fetching.h"
#include "sample-region/Fault.h"
#include "sample-region/Provider.h"
#include "sample-region/Streams.h"
#include "support/SampleRegion.h"

#include <gmock/gmock.h>

namespace vidora::region {
namespace {

using test::get;
using test::SampleRegion;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(Fault, IsReadFromText)
{
    struct Case
    {
        const char *text, *pattern, *argument;
        Fault::Kind kind;
    };
    for (const Case& c : {Case{"n/epg.xml=status:503", "n/epg.xml", "503", Fault::Kind::Status},
                          Case{"=.rs/x?kanal_id=1*=cut", "=.rs/x?kanal_id=1*", "", Fault::Kind::Cut},
                          Case{"joj*=missing:class=\"time\"", "joj*", "class=\"time\"", Fault::Kind::Missing},
                          Case{"n*=redirect:/a=cut", "n*", "/a=cut", Fault::Kind::Redirect},
                          Case{"*=shift:-2", "*", "-2", Fault::Kind::Shift}}) {
        const auto fault = Fault::fromText(c.text);
        ASSERT_TRUE(fault) << c.text;
        EXPECT_EQ(fault->pattern, c.pattern);
        EXPECT_EQ(fault->argument, c.argument);
        EXPECT_EQ(fault->kind, c.kind);
    }
    for (const char* text : {"", "n", "n=", "=empty", "n=boom", "n=status", "n=status:x", "n=empty:1", "n=missing:"})
        EXPECT_FALSE(Fault::fromText(text)) << text;
}

TEST(Fault, MatchesPatternsInBoundedTime)
{
    const auto matches = [](const char* pattern, const std::string& target) {
        return Fault{pattern, Fault::Kind::Empty}.matches(target);
    };
    EXPECT_TRUE(matches("joj/*day=2*", "joj/cz/cz-program/?day=22-11-2026"));
    EXPECT_TRUE(matches("n/epg.xml", "n/epg.xml"));
    EXPECT_TRUE(matches("**", ""));
    EXPECT_FALSE(matches("n/epg", "n/epg.xml"));
    EXPECT_FALSE(matches("n/epg.xml?", "n/epg.xml1"));
    EXPECT_FALSE(matches("*a*a*a*a*a*a*a*a*a*a*b", std::string(100'000, 'a')));
}

TEST(RegionServer, KeepsItsPortsFromRunToRunAndYieldsToAnother)
{
    const FixedClock clock(*instantFromIsoText(u"2026-11-22T19:00:00Z"));
    SystemSleeper sleeper;
    RegionServer::Options options;
    auto first = std::make_unique<RegionServer>(clock, sleeper, options);
    const std::string origin = first->origin(providers().front().name);
    options.port = std::stoi(origin.substr(origin.rfind(':') + 1));
    options.fallsBack = true;
    EXPECT_NE(RegionServer(clock, sleeper, options).origin(providers().front().name), origin);
    first.reset();
    EXPECT_EQ(RegionServer(clock, sleeper, options).origin(providers().front().name), origin);
}

TEST(RegionServer, FaultsReachTheClient)
{
    SampleRegion region;
    const std::string guide = region.server.origin("n") + "/epg.xml",
                      tabs = region.server.origin("dolce-sport") + "/program/stadion-verde-1";
    const std::string whole = get(guide)->body;
    const auto with = [&](const char* fault, const std::string& address) {
        region.server.setFaults({Fault::fromText(fault).value()});
        return get(address);
    };
    EXPECT_EQ(with("n/*=status:503", guide)->status, 503);
    EXPECT_EQ(with("s/*=status:503", guide)->body, whole);
    EXPECT_EQ(with("n/*=empty", guide)->body, "");
    EXPECT_FALSE(with("n/*=cut", guide)) << "a body that ends early is no answer";
    EXPECT_EQ(with("dolce*=charset:x-none", tabs)->get_header_value("Content-Type"), "text/html; charset=x-none");
    EXPECT_THAT(with("dolce*=missing:list-group-item", tabs)->body, Not(HasSubstr("list-group-item")));
    EXPECT_THAT(with("dolce*=six-days", tabs)->body, Not(HasSubstr("duminica")));

    const auto redirect = with("n/epg.xml=redirect:/other", guide);
    EXPECT_EQ(redirect->status, 302);
    EXPECT_EQ(redirect->get_header_value("Location"), region.server.origin("n") + "/other");
    EXPECT_EQ(redirect->body, "");

    EXPECT_TRUE(region.sleeper.slept().empty());
    EXPECT_EQ(with("n/*=delay:1500", guide)->body, whole);
    EXPECT_THAT(region.sleeper.slept(), ElementsAre(Milliseconds(1500)));
}

TEST(RegionServer, EverySiteHasItsPictures)
{
    SampleRegion region;
    for (const Provider& provider : providers()) {
        const auto picture = get(region.server.origin(provider.name) + "/images/4-2cce490f.png");
        EXPECT_EQ(picture->status, 200) << provider.name;
        EXPECT_EQ(picture->get_header_value("Content-Type"), "image/png") << provider.name;
    }
}

TEST(RegionServer, WrongDaysAreServed)
{
    SampleRegion region;
    const std::string page = region.server.origin("cinestar") + "/raspored/";
    EXPECT_THAT(get(page)->body, HasSubstr(">21.11.2026.<"));
    region.server.setFaults({Fault::fromText("cinestar/*=shift:-2").value()});
    EXPECT_THAT(get(page)->body, HasSubstr(">19.11.2026.<"));
    region.server.setFaults({Fault::fromText("cinestar/*=no-today").value()});
    for (const char* day : {"", "?dan=2", "?dan=7"})
        EXPECT_THAT(get(page + day)->body, Not(HasSubstr(">22.11.")));
}

TEST(RegionServer, FollowsItsClockAndLogsWhatWasAskedFor)
{
    SampleRegion region;
    const std::string page = region.server.origin("primaMax") + "/tv-program";
    EXPECT_THAT(get(page)->body, HasSubstr("<!-- 2026-11-22 -->"));
    region.clock.advance(dayStep);
    EXPECT_THAT(get(page)->body, HasSubstr("<!-- 2026-11-23 -->"));
    EXPECT_EQ(get(page + "/2026-13-40")->status, 404);
    EXPECT_EQ(get(region.server.origin("r.0") + "/rytecXX1.xz")->status, 404);
    EXPECT_THAT(region.server.requests(), ElementsAre("primaMax/tv-program", "primaMax/tv-program",
                                                      "primaMax/tv-program/2026-13-40", "r.0/rytecXX1.xz"));
    region.server.clearRequests();
    EXPECT_TRUE(region.server.requests().empty());
}

TEST(RegionServer, ServesWholeStreamsAndDeadOnes)
{
    SampleRegion region;
    const std::string folder = region.server.origin("n") + "/stream/";
    const auto playlist = get(folder + "lipa1.m3u8");
    ASSERT_EQ(playlist->status, 200);
    EXPECT_EQ(playlist->get_header_value("Content-Type"), "application/vnd.apple.mpegurl");
    int pieces = 0;
    for (const QString& line : QString::fromStdString(playlist->body).split(u'\n', Qt::SkipEmptyParts)) {
        if (line.startsWith(u'#'))
            continue;
        const auto piece = get(folder + line.toStdString());
        ASSERT_EQ(piece->status, 200) << line.toStdString();
        EXPECT_EQ(piece->body.size() % 188, 0U) << "packets of a transport stream (ISO/IEC 13818-1)";
        EXPECT_THAT(piece->body, ::testing::StartsWith("G"));
        ++pieces;
    }
    EXPECT_EQ(pieces, 3);
    for (const char* other : {"lipa2.m3u8", "satvesti.m3u8", "signal.m3u8", "../gone/harbournews.m3u8", ""})
        EXPECT_EQ(get(folder + other)->status, 404) << other;

    const SilentAddress silent(0), second(silent.port());
    ASSERT_NE(silent.port(), 0);
    EXPECT_EQ(second.port(), 0) << "the port is taken";
    httplib::Client client("127.0.0.1", silent.port());
    client.set_read_timeout(std::chrono::milliseconds(1));
    EXPECT_EQ(client.Get("/stream/satvesti.m3u8").error(), httplib::Error::Read) << "connected, but not answered";
}

TEST(RegionServer, TwoRegionsStandSideBySide)
{
    SampleRegion one, other("2026-12-24T10:00:00Z");
    EXPECT_NE(one.server.origin("n"), other.server.origin("n"));
    region::RegionServer::Options taken;
    taken.port = std::stoi(one.server.origin("n").substr(std::string("http://127.0.0.1:").size()));
    EXPECT_THROW(region::RegionServer(one.clock, one.sleeper, taken), std::runtime_error);
}

} // namespace
} // namespace vidora::region
