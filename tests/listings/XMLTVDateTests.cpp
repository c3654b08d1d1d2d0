#include "listings/XMLTVDate.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

QString dateText(const char* text)
{
    const auto date = xmltvDate(std::string_view{text});
    EXPECT_EQ(date, xmltvDate(QString::fromUtf8(text))) << text;
    return date ? isoText(*date) : QStringLiteral("nothing");
}

TEST(XMLTVDate, ReadsFixedFormsAndNothingElse)
{
    const struct
    {
        const char* text;
        const char* date;
    } cases[] = {
        {"20261122190000 +0100", "2026-11-22T18:00:00Z"},
        {"20261122190000+0100", "2026-11-22T18:00:00Z"},
        {"20261122190000 -0330", "2026-11-22T22:30:00Z"},
        {"20261122190000 +01", "2026-11-22T18:00:00Z"},
        {"20261122190000 +05:45", "2026-11-22T13:15:00Z"},
        {"20261122190000Z", "2026-11-22T19:00:00Z"},
        {"20261122190000 Z", "2026-11-22T19:00:00Z"},
        {"20240229235959 +0000", "2024-02-29T23:59:59Z"},
        {"20261231233000 -0100", "2027-01-01T00:30:00Z"},
        {"20261122190000", "nothing"},
        {"20261122190000 ", "nothing"},
        {"202611221900 +0100", "nothing"},
        {"20261122190000  +0100", "nothing"},
        {"20261122190000\t+0100", "nothing"},
        {"20261122190000 +0100 ", "nothing"},
        {"20261122190000 +1", "nothing"},
        {"20261122190000 +01000", "nothing"},
        {"20261122190000 +01:0", "nothing"},
        {"20261122190000 +2400", "nothing"},
        {"20261122190000 +0160", "nothing"},
        {"20261122190000 CET", "nothing"},
        {"20261122190000 0100", "nothing"},
        {"20230229120000 +0000", "nothing"},
        {"20261301120000 +0000", "nothing"},
        {"20261100120000 +0000", "nothing"},
        {"20261122240000 +0000", "nothing"},
        {"20261122196000 +0000", "nothing"},
        {"20261122190060 +0000", "nothing"},
        {"2026-11-22T19:00:00Z", "nothing"},
        {"2026112219000O +0100", "nothing"},
        {" 20261122190000 +0100", "nothing"},
        {"٢0261122190000 +0100", "nothing"},
        {"", "nothing"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(dateText(c.text).toStdString(), c.date) << c.text;
}

} // namespace
} // namespace vidora
