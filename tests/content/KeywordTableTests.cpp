#include "content/KeywordTable.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

TEST(KeywordTable, RowsHitByEachWordsOwnOption)
{
    const KeywordTable table{
        {0x1, {{u"film", Folding::Case}, u"Krimić"}},
        {0x2, {{u"Météo", Folding::Diacritics}}},
        {0x4, {{u"sorozat", Folding::CaseAndDiacritics}, u"dječ", u"SF"}},
        {0x8, {{u"akční", Folding::Case}}},
    };
    const struct
    {
        const char16_t* text;
        TVListingsCategory bits;
    } cases[] = {
        {u"", 0},
        {u"Telefilmovi", 0x1},
        {u"TELEFILM", 0x1},
        {u"krimić", 0},
        {u"Krimic\u0301", 0x1}, // canonically equivalent spelling
        {u"Krimic", 0},
        {u"Meteo", 0x2},
        {u"Me\u0301te\u0301o", 0x2},
        {u"meteo", 0},
        {u"SÖROZAT", 0x4},
        {u"za djec\u030cu", 0x4},
        {u"za djecu", 0},
        {u"sf", 0},
        {u"AKČNÍ", 0x8},
        {u"AKC\u030cNI\u0301", 0x8},
        {u"akcni", 0},
        {u"Film SF Météo", 0x1 | 0x2 | 0x4},
    };
    for (const auto& c : cases)
        EXPECT_EQ(table.match(c.text), c.bits) << QString::fromUtf16(c.text).toStdString();
}

TEST(KeywordTable, WordsInsideAndBehindOneAnotherAreAllFound)
{
    const KeywordTable table{{0x1, {u"abcd"}}, {0x2, {u"bc"}}, {0x4, {u"cdx"}}, {0x8, {u"d"}}, {0x10, {u"bcy"}}};
    EXPECT_EQ(table.match(u"abcd"), 0x1u | 0x2u | 0x8u);
    EXPECT_EQ(table.match(u"abcdx"), 0x1u | 0x2u | 0x4u | 0x8u);
    EXPECT_EQ(table.match(u"ababcy"), 0x2u | 0x10u);
}

} // namespace
