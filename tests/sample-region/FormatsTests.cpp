#include "Fetching.h"
#include "listings/ListingParser.h"
#include "listings/ListingSources.h"
#include "sample-region/Documents.h"
#include "support/SampleRegion.h"

#include <QXmlStreamReader>

#include <gmock/gmock.h>

namespace vidora::region {
namespace {

using test::SampleRegion;

class Store final : public ListingReceiver
{
public:
    void storeList(const ObjectId&, std::shared_ptr<const ShowList> shows) override { list = std::move(shows); }
    void addToSaveSchedule(const ObjectId&) override {}
    void listingsStored() override {}

    std::shared_ptr<const ShowList> list;
};

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

/// Fetches all pages of a source from the region, has them parsed, and gives what would be stored.
std::shared_ptr<const ShowList> delivered(const SampleRegion& region, const Endpoints& endpoints,
                                          const RegionChannel& channel, const QString& source)
{
    test::ScriptedRandom random({0, 1});
    const auto urls = urlsForSourceId(source, region.clock.now(), std::nullopt, endpoints, random);
    if (!urls)
        return nullptr;
    Pages pages;
    for (const URL& url : *urls) {
        const auto answer = test::get(url.text().toStdString());
        if (!answer || answer->status != 200)
            ADD_FAILURE() << url.text().toStdString();
        else
            pages.push_back(test::pageOf(answer));
    }
    Store store;
    ListingParser parser(region.clock, endpoints, store);
    parser.netList({{ObjectId::initWithHex(text(channel.id)), source, text(channel.language)}}, pages,
                   region.clock.now(), listingsTypeForSourceId(source, endpoints));
    return store.list;
}

/// Providers differ in how they write a title, not in its letters.
QString line(Instant start, const QString& title)
{
    return isoText(start) + QLatin1Char(' ') + title.toLower();
}

class Formats : public ::testing::TestWithParam<const char*>
{
};

// The heart of the region: whatever document a broadcast is read from, it is the same broadcast.
TEST_P(Formats, AllGiveTheSameShows)
{
    const SampleRegion region(GetParam());
    const Endpoints endpoints = region.endpoints();
    const Instant now = region.clock.now();
    for (const RegionChannel& channel : regionChannels()) {
        for (const std::string_view id : channel.sources) {
            const QString source = text(id);
            const std::uint32_t type = listingsTypeForSourceId(source, endpoints);
            if (source.startsWith(QLatin1String("http")))
                continue; // of a fixed port, which another region may hold
            SCOPED_TRACE(id);
            const auto list = delivered(region, endpoints, channel, source);
            if (!list) {
                ADD_FAILURE() << "nothing came";
                continue;
            }
            QStringList came, expected;
            for (const Show& show : *list)
                came.append(line(show->entry->dateTime().value(), show->entry->title().value_or(QString())));
            for (const Broadcast& show : Schedule(1).between(channel, list->front()->entry->dateTime().value(),
                                                             list->back()->entry->dateTime().value() + Seconds(1)))
                expected.append(line(show.start, QString::fromStdString(show.title)));
            EXPECT_EQ(came.join(QLatin1Char('\n')).toStdString(), expected.join(QLatin1Char('\n')).toStdString());
            constexpr std::uint32_t oneDay = 4, startsAtEight = 9;
            EXPECT_LE(list->front()->entry->dateTime().value(), type == startsAtEight ? now + dayStep : now);
            EXPECT_GE(list->back()->entry->dateTime().value(), type == oneDay ? now : now + dayStep);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Moments, Formats,
                         ::testing::Values("2026-11-22T19:00:00Z", "2026-12-31T22:30:00Z", "2027-02-28T12:00:00Z"));

TEST(Documents, XMLIsWellFormedAndCompressedFeedsStayWithinReadersLimits)
{
    const SampleRegion region;
    const auto& server = region.server;
    for (const std::string& address :
         {server.origin("r.0") + "/rytecRS1.xz", server.origin("r.1") + "/rytecUK1.xz", server.origin("n") + "/epg.xml",
          server.origin("s") + "/losmij/epg.xml.gz", server.origin("tvpc") + "/guide/tvpc.xml",
          server.origin("weekly") + "/xmltv/data/lipa1/weekly_lipa1_vodic.xml",
          server.origin(".tv") + "/export/xmltv/bura2.tvepg_2026-11-22.xml",
          server.origin("=.rs") + "/xmltv/service.ashx?kanal_id=5101&date=22.11.2026.",
          server.origin("_.0") + "/dati/palinsesto/palinsesto.xml", server.origin("_.1") + "/export/palinsesto.xml"}) {
        const Page page = test::pageOf(test::get(address));
        const QString document = page.text().value_or(QString());
        QXmlStreamReader reader(document);
        while (!reader.atEnd())
            reader.readNext();
        EXPECT_FALSE(reader.hasError()) << address << reader.errorString().toStdString();
        constexpr int mostGrowth = 23;
        if (address.find(".xz") != std::string::npos) {
            EXPECT_LT(document.toUtf8().size(), mostGrowth * page.wireSize()) << address;
        }
    }
}

TEST(Documents, TheFixedAddressServesItsChannel)
{
    const Schedule schedule(1);
    const DocumentRequest request{schedule,
                                  instantFromIsoText(QStringLiteral("2026-11-22T19:00:00Z")).value(),
                                  0,
                                  "/guide/zvonik.xml",
                                  {},
                                  {},
                                  "http://127.0.0.1:26418",
                                  false};
    const auto document = xmltvPage(request);
    ASSERT_TRUE(document);
    EXPECT_NE(document->body.find("<display-name lang=\"sr\">Zvonik<"), std::string::npos);
}

} // namespace
} // namespace vidora::region
