#include "listings/PageScanner.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

qsizetype at(const std::optional<PageScanner::Match>& match)
{
    return match ? match->at : -1;
}

TEST(PageScanner, FindsInsideTheRangeOnly)
{
    const PageScanner page(u"<b>one</b><b>two</b>");
    EXPECT_EQ(at(page.find(u"<b>", 0)), 0);
    EXPECT_EQ(at(page.find(u"<b>", 1)), 10);
    EXPECT_EQ(at(page.find(u"<b>", 1, 12)), -1) << "a match that ends behind the range";
    EXPECT_EQ(at(page.findBackward(u"<b>", 0, 12)), 0);
    EXPECT_EQ(at(page.findBackward(u"<b>", 1, 20)), 10);
    EXPECT_EQ(at(page.find(u"", 0)), -1);
    EXPECT_EQ(at(page.find(u"<", 20)), -1) << "an empty range at the end is a range";

    const auto cut = page.cut(u"<b>", u"</b>", 3, page.size());
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->text, u"two");
    EXPECT_EQ(cut->close.end, 20);
    EXPECT_FALSE(page.cut(u"<b>", u"</b>", 3, 18));
}

TEST(PageScanner, RangePastTheEndThrows)
{
    const PageScanner page(u"12345");
    EXPECT_THROW(page.find(u"5", 6), RangeException);
    EXPECT_THROW(page.find(u"5", 4, 3), RangeException);
    EXPECT_THROW(page.findBackward(u"5", 0, 6), RangeException);
    EXPECT_THROW(page.findExpression(u"5", 0, u"5", -1, 5), RangeException);
    EXPECT_THROW(page.units(1, 5), RangeException);
    EXPECT_THROW(page.units(1, std::numeric_limits<qsizetype>::max()), RangeException);
    EXPECT_EQ(page.units(1, 4), u"2345");
}

TEST(PageScanner, PlainSearchTakesEquivalentTextsAndWholeCharacters)
{
    const struct
    {
        QStringView text, marker;
        qsizetype at;
    } rows[] = {
        {u"x - seri\u00e1l", u"- seri\u00e1l", 2},
        {u"x - seria\u0301l", u"- seri\u00e1l", 2},
        {u"- seri\u00e1l", u"- seria\u0301l", 0},
        {u"- seria\u0301l - seri\u00e1l", u"- seri\u00e1l", 0},
        {u"- serial", u"- seri\u00e1l", -1},
        {u"class=\"title\">\u0301x", u"class=\"title\">", -1},
        {u"<\u0338 <", u"<", 3},
    };
    for (const auto& row : rows)
        EXPECT_EQ(at(PageScanner(row.text).findPlain(row.marker, 0, row.text.size())), row.at)
            << row.text.toString().toStdString();
}

TEST(PageScanner, ExpressionStaysOnItsLine)
{
    const struct
    {
        QStringView text;
        qsizetype at, end;
    } rows[] = {
        {u"<p class=\"hour now\">9:00", 2, 20},
        {u" class=\"hour>>", 0, 14},                   // at least one character in between
        {u" class=\"hour\n> class=\"hour\">", 14, 28}, // no line end in between
        {u" class=\"hour\u2028>", -1, -1},
        {u" class=\"hour x class=\"hour y", -1, -1},
    };
    for (const auto& row : rows) {
        const auto match = PageScanner(row.text).findExpression(u" class=\"hour", 1, u">", 0, row.text.size());
        EXPECT_EQ(at(match), row.at) << row.text.toString().toStdString();
        EXPECT_EQ(match ? match->end : -1, row.end);
    }
}

TEST(PageScanner, RememberedFindAnswersLikeAFreshOne)
{
    const PageScanner page(u"a--a---a");
    RememberedFind remembered(page, u"a");
    for (qsizetype from = 0; from <= page.size(); ++from)
        EXPECT_EQ(at(remembered.find(from)), at(page.find(u"a", from))) << from;
}

} // namespace
