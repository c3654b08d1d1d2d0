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
        void (*scan)(const ScanInput&, Drafts&);
        const char* head;
        const char* repeated;
    } rows[] = {
        {scanDsk, "id=\"tabs-0\" alt=\"film\" ", "<span><strong>"},
        {scanDsk, "id=\"tabs-0\" alt=\"film\" ", "<span><strong>20:00<strong>a<br />b< "},
        {scanDsk, "", "id=\"tabs-0\" alt=\"film\""},
        {scanJoj, "day=21-11-2026\" class=\"active\" class=\"item\"", "class=\"time\">20:00<a href=\"/x"},
        {scanJoj, "", "day=21-11-2026\" class=\"active\" class=\"item\" href=\"?day="},
        {scanPrimaMax, "class=\"tab tab-active\"<div class=\"row\">", "<time>20:00"},
        {scanPrimaMax, "class=\"tab tab-active\"<div class=\"row\">",
         "<time>20:00<h3 class=\"broadcast-title broadcast-title-xs\">x"},
        {scanPrimaMax, "", "class=\"tab tab-active\"<div class=\"row\">"},
        {scanDolceSport, "", "data-ls-for=\"<li class=\"list-group-item\">"},
        {scanPortNetwork, "", "[{\"channels\":"},
    };
    const ChannelItems items = {{ObjectId(), QStringLiteral("dsk.film"), std::nullopt}};
    const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");
    const FixedClock clock(now);
    const Endpoints endpoints;
    for (const auto& row : rows) {
        const QStringList pages = {QLatin1String(row.head) + QString::fromLatin1(row.repeated).repeated(times)};
        Drafts drafts;
        row.scan(ScanInput{pages, items, now, clock, endpoints}, drafts);
        EXPECT_TRUE(drafts.empty()) << row.repeated;
    }
}

} // namespace
