#include "listings/Scanner.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

/// Pages of one marker repeated without end: work that grew by the square would take hours here, not a second.
TEST(HostilePages, RepeatedMarkersTakeTimeInProportion)
{
    constexpr int times = 100'000;
    const struct
    {
        const char* source;
        void (*scan)(const ScanInput&, Drafts&);
        const char* head;
        const char* repeated;
    } rows[] = {
        {"dsk.film", scanDsk, "id=\"tabs-0\" alt=\"film\" ", "<span><strong>"},
        {"dsk.film", scanDsk, "id=\"tabs-0\" alt=\"film\" ", "<span><strong>20:00<strong>a<br />b< "},
        {"dsk.film", scanDsk, "", "id=\"tabs-0\" alt=\"film\""},
        {"joj.x", scanJoj, "day=21-11-2026\" class=\"active\" class=\"item\"", "class=\"time\">20:00<a href=\"/x"},
        {"joj.x", scanJoj, "", "day=21-11-2026\" class=\"active\" class=\"item\" href=\"?day="},
        {"x", scanPrimaMax, "class=\"tab tab-active\"<div class=\"row\">", "<time>20:00"},
        {"x", scanPrimaMax, "class=\"tab tab-active\"<div class=\"row\">",
         "<time>20:00<h3 class=\"broadcast-title broadcast-title-xs\">x"},
        {"x", scanPrimaMax, "", "class=\"tab tab-active\"<div class=\"row\">"},
        {"dolce-sport.1", scanDolceSport, "", "data-ls-for=\"<li class=\"list-group-item\">"},
        {"12", scanPortNetwork, "", "[{\"channels\":"},
    };
    const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");
    const FixedClock clock(now);
    const Endpoints endpoints;
    for (const auto& row : rows) {
        const ChannelItems items = {{ObjectId(), QString::fromLatin1(row.source), std::nullopt}};
        const QStringList pages = {QLatin1String(row.head) + QString::fromLatin1(row.repeated).repeated(times)};
        Drafts drafts;
        row.scan(ScanInput{pages, items, now, clock, endpoints}, drafts);
        EXPECT_TRUE(drafts.empty()) << row.repeated;
    }
}

/// The same where the pages do hold shows.
TEST(HostilePages, RepeatedShowsTakeTimeInProportion)
{
    constexpr int times = 100'000;
    // A block of links that all lead to one section, as do those of every block behind it.
    const QString heading = QStringLiteral("<h3 class=\"program-channel__title program-channel__title--x\">x</h3>");
    const QString popUp = QStringLiteral("<div class=\"remodal\" data-remodal-id=\"modal");
    const QString hbo = QStringLiteral("<html><div class=\"channel\">logo_index_1");
    const QString today = QStringLiteral("\"date\">  22.11. kanal-C1' fit-text'> a< class=\"hour\">20:00<");
    const struct
    {
        const char* source;
        void (*scan)(const ScanInput&, Drafts&);
        QString head, repeated, tail;
        std::size_t shows;
    } rows[] = {
        {"barrandov.x",
         scanBarrandov,
         {},
         heading + QStringLiteral("<a href=\"#modal\""),
         popUp + QStringLiteral("<li><strong>Datum vysílání:</strong> "),
         0},
        {"barrandov.x",
         scanBarrandov,
         heading + QStringLiteral("<a href=\"#modal1\"") + heading,
         popUp + QStringLiteral("1"),
         {},
         0},
        {"barrandov.x", scanBarrandov, {}, heading, {}, 0},
        {"-hbo.hr.1", scanHbo, hbo, QStringLiteral("<a href=\"/x\" past class=\"time\">"), {}, 0},
        {"-hbo.hr.1",
         scanHbo,
         hbo,
         QStringLiteral("<a href=\"/x\" class=\"time\">20:00<class=\"title\">a<"),
         {},
         times},
        {"-hbo.hr.1", scanHbo, {}, hbo, {}, 0},
        {"cz.nova.x",
         scanNova,
         QStringLiteral("class=\"channels-logo\">x<"),
         QStringLiteral("<li class=\"channels-content-show\"<span class=\"title\">data-begin=\""),
         {},
         0},
        {"cz.nova.x", scanNova, {}, QStringLiteral("class=\"channels-logo\">x<"), {}, 0},
        {"cinestar.hr.1", scanCinestar, today, QStringLiteral(" class=\"hour\">20:00<<h4 class='title'>a<"),
         QStringLiteral("href=\""), times + 1},
        {"cinestar.hr.1", scanCinestar, {}, QStringLiteral("\"date"), today, 1},
        {"cc.romania", scanRomania, {}, QStringLiteral("data-time=\"1\"<h3>a<"), QStringLiteral(" href=\"/x"), times},
        {"_AB", scanPalinsesto, QStringLiteral("<p>"), QStringLiteral("<c id=\"AB\"/>"), QStringLiteral("</p>"), 0},
        {"_AB", scanPalinsesto, QStringLiteral("<p>"),
         QStringLiteral("<programma idref='AB' timestamp='202611222000' titolo='a'/>"), QStringLiteral("</p>"), times},
    };
    const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");
    const FixedClock clock(now);
    const Endpoints endpoints;
    for (const auto& row : rows) {
        const ChannelItems items = {{ObjectId(), QString::fromLatin1(row.source), std::nullopt}};
        QStringList pages(1, row.head + row.repeated.repeated(times) + row.tail);
        for (int more = 1; more < 7; ++more)
            pages.append(QString());
        Drafts drafts;
        row.scan(ScanInput{pages, items, now, clock, endpoints}, drafts);
        EXPECT_EQ(drafts[ObjectId()].size(), row.shows) << row.source << ' ' << row.repeated.toStdString();
    }
}

} // namespace
