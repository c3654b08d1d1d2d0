#include "listings/ListingSources.h"
#include "listings/PageScanner.h"
#include "support/Seams.h"

#include <QFile>

#include <gtest/gtest.h>

using namespace vidora;

namespace {

Endpoints application()
{
    QFile file(QStringLiteral(VIDORA_RESOURCES "/endpoints.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return Endpoints::fromJson(file.readAll(), {});
}

std::optional<URLSet> urls(const char* sourceId, const char* now, const Endpoints& endpoints = application(),
                           std::vector<std::uint32_t> picks = {0, 1, 1})
{
    test::ScriptedRandom random(std::move(picks));
    return urlsForSourceId(QString::fromUtf8(sourceId), *instantFromIsoText(QString::fromLatin1(now)), std::nullopt,
                           endpoints, random);
}

TEST(ListingSources, TypesAndPortNetwork)
{
    const struct
    {
        const char* id;
        std::uint32_t type;
        bool port;
    } rows[] = {
        {"12", 0, true},
        {"-12", 0, true},
        {"0", 0, true},
        {"2147483647", 0, true},
        {"2147483648", 1, false},
        {"-2147483648", 0, true},
        {"012", 1, false},
        {"+12", 1, false},
        {"12a", 1, false},
        {" 12", 1, false},
        {"-0", 1, false},
        {"", 1, false},
        {"_C5", 2, false},
        {"barrandov.x", 3, false},
        {"dsk.x", 4, false},
        {"joj.x", 5, false},
        {"max.prima.example", 6, false},
        {"-hbo.hu", 7, false},
        {"cz.nova.x", 8, false},
        {"dolce-sport.1", 9, false},
        {"cinestar.hr.1", 10, false},
        {"cc.romania", 11, false},
        {"cc.romania2", 1, false},
        {"cz.nova.x.tv", 1, false},
        {"_C5.tv", 1, false},
        {"r.ab.tv", 1, false},
        {"=123", 1, false},
        {"DSK.x", 1, false},
    };
    const Endpoints endpoints = application();
    for (const auto& row : rows) {
        EXPECT_EQ(listingsTypeForSourceId(QString::fromLatin1(row.id), endpoints), row.type) << row.id;
        EXPECT_EQ(sourceIdUsedByPortNetwork(QString::fromLatin1(row.id)), row.port) << row.id;
    }
}

TEST(ListingSources, Addresses)
{
    const struct
    {
        const char* id;
        const char* now;
        std::size_t count;
        const char* first;
        const char* last;
    } rows[] = {
        {"r.abc.x", "2026-11-22T19:00:00Z", 1, "http://one.feeds.example/rytecabc.xz", nullptr},
        {"r.ab.tv", "2026-11-22T19:00:00Z", 1, "http://one.feeds.example/rytecab.xz", nullptr},
        {"n.x", "2026-11-22T19:00:00Z", 1, "http://guide.north.example/epg.xml", nullptr},
        {"s.x", "2026-11-22T19:00:00Z", 1, "http://guide.south.example/losmij/epg.xml.gz", nullptr},
        {"tvpc.x", "2026-11-22T19:00:00Z", 1, "http://guide.personal.example/xmltv/guide.xml", nullptr},
        {"dolce-sport.1", "2026-11-22T19:00:00Z", 1, "https://www.dolce.example/program/1", nullptr},
        {"_KQ", "2026-11-22T19:00:00Z", 1, "https://first.palinsesto.example/dati/palinsesto/palinsesto.xml", nullptr},
        {"_KQ2", "2026-11-22T19:00:00Z", 1, "https://second.palinsesto.example/export/palinsesto.xml", nullptr},
        {"http://a.example/x y", "2026-11-22T19:00:00Z", 1, "http://a.example/x%20y", nullptr},
        {"barrandov.x", "2026-12-30T23:30:00Z", 2, "https://www.barrandov.example/program/#onair",
         "https://www.barrandov.example/program/?day=2027-01-01#on-air"},
        {"dsk.x", "2026-11-22T19:00:00Z", 1, "https://www.dsk.example/program/", nullptr},
        {"joj.x", "2026-03-01T22:59:00Z", 7, "http://cinema.joj.example/cz/cz-program/?day=28-2-2026",
         "http://cinema.joj.example/cz/cz-program/?day=6-3-2026"},
        {"-hbo.hu", "2026-11-22T19:00:00Z", 23, "https://hu.films.example/tvmusor/11/21",
         "https://hu.films.example/tvmusor/12/13"},
        {"-hbo.ba", "2026-11-22T19:00:00Z", 23, "https://ba.films.example/raspored/11/21",
         "https://ba.films.example/raspored/12/13"},
        {"-hbo.rs.HBO-rs", "2026-11-22T19:00:00Z", 23, "https://rs.films.example/program/11/21",
         "https://rs.films.example/program/12/13"},
        {"max.prima.example", "2026-11-22T23:30:00Z", 4, "https://max.prima.example/tv-program",
         "https://max.prima.example/tv-program/2026-11-26"},
        {"cz.nova.x.tv", "2026-11-22T19:00:00Z", 9, "https://www.nova.example/program/?epg_date=2026-11-21",
         "https://www.nova.example/program/?epg_date=2026-11-29"},
        {"x.tv", "2026-12-28T23:30:00Z", 7, "http://export.dot-tv.example/export/xmltv/x.tvdottv_2026-12-28.xml",
         "http://export.dot-tv.example/export/xmltv/x.tvdottv_2027-01-03.xml"},
        {"cc.romania", "2026-11-22T19:00:00Z", 7, "http://www.romania.example/program-tv/azi/",
         "http://www.romania.example/program-tv/azi/?page=6"},
        {"cinestar.rs.x", "2026-11-22T19:00:00Z", 7, "https://www.cinema.example.rs/raspored/",
         "https://www.cinema.example.rs/raspored/?dan=7"},
        {"=123", "2026-11-22T23:30:00Z", 11,
         "https://guide.equals-rs.example/xmltv/service.ashx?kanal_id=123&date=23.11.2026.",
         "https://guide.equals-hr.example/xmltv/service.ashx?kanal_id=123&date=3.12.2026."},
        {"12", "2026-11-22T23:30:00Z", 1,
         "https://www.port.example/tvapi?channel_id=tvchannel-12&i_datetime_from=2026-11-23&i_datetime_to=2026-11-30",
         nullptr},
        {"41", "2026-02-26T12:00:00Z", 1,
         "https://www.port.example/tvapi?channel_id=tvchannel-41&i_datetime_from=2026-02-26&i_datetime_to=2026-03-02",
         nullptr},
        {"012", "2026-11-22T19:00:00Z", 1, "https://www.weekly.example/xmltv/data/012/weekly_012_weekly.xml", nullptr},
        // A fixed step from the last hour of the day before the clocks go back lands on that day twice.
        {"joj.x", "2026-10-24T22:30:00Z", 6, "http://cinema.joj.example/cz/cz-program/?day=24-10-2026",
         "http://cinema.joj.example/cz/cz-program/?day=29-10-2026"},
    };
    for (const auto& row : rows) {
        const auto set = urls(row.id, row.now);
        ASSERT_TRUE(set) << row.id;
        EXPECT_EQ(set->size(), row.count) << row.id;
        EXPECT_EQ(set->front().text().toStdString(), row.first);
        EXPECT_EQ(set->back().text().toStdString(), row.last ? row.last : row.first);
    }
}

TEST(ListingSources, IdsThatDoNotFitTheirFamilyHaveNoAddresses)
{
    for (const char* id : {"r.", "r.abc", "-hbo.", "-hbo.h", "-hbo.xx", "-hbo.hu.HBO", "cinestar.", "cinestar.h"})
        EXPECT_FALSE(urls(id, "2026-11-22T19:00:00Z")) << id;
    EXPECT_THROW(timeZoneForServer(u"h"), RangeException);
    EXPECT_FALSE(timeZoneForServer(u"xx"));
    EXPECT_EQ(timeZoneForServer(u"-hbo.hr")->id(), "Europe/Zagreb");
}

TEST(ListingSources, OriginsReplaceTheScheme)
{
    const Endpoints own = Endpoints::fromJson(R"({
        "joj": {"host": "https://127.0.0.1:81"}, "dsk": {"host": "127.0.0.1:81"}, "port": {"host": 5}, "tvpc": [],
        "-hbo": {"hosts": {"hu": "http://127.0.0.1:82"}}, "primaMax": {"host": "http://127.0.0.1:83"},
        "cinestar": {"host": "http://127.0.0.1:84"}, "=": {"hosts": ["http://a"]}, "r": {"bases": [1, "http://b"]}})",
                                              application());
    const struct
    {
        const char* id;
        const char* first;
    } rows[] = {
        {"joj.x", "https://127.0.0.1:81/cz/cz-program/?day=21-11-2026"},
        {"dsk.x", "https://127.0.0.1:81/program/"},
        {"tvpc.x", "http://guide.personal.example/xmltv/guide.xml"},
        {"-hbo.hu", "http://127.0.0.1:82/tvmusor/11/21"},
        {"-hbo.cz", "https://cz.films.example/program/11/21"},
        {"max.prima.example", "http://127.0.0.1:83/tv-program"},
        {"cinestar.hr.1", "http://127.0.0.1:84/raspored/"},
        {"=1", "http://a/xmltv/service.ashx?kanal_id=1&date=22.11.2026."},
        {"r.a.", "http://one.feeds.example/ryteca.xz"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(urls(row.id, "2026-11-22T19:00:00Z", own)->front().text().toStdString(), row.first);
    EXPECT_EQ(own.hosts.value(QStringLiteral("port")), QStringLiteral("www.port.example"));
    for (const char* broken : {"", "[]", "{", "{\"joj\": 5}"})
        EXPECT_EQ(Endpoints::fromJson(broken, own).hosts, own.hosts);
}

} // namespace
