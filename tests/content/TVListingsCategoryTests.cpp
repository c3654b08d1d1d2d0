#include "content/TVListingsCategory.h"

#include <gtest/gtest.h>

using namespace vidora;

namespace {

std::string named(const char16_t* text)
{
    return text ? QString::fromUtf16(text).toStdString() : "(none)";
}

TEST(EntryTextHasWord, TheFirstOccurrenceStandsAlone)
{
    const struct
    {
        const char16_t* text;
        const char16_t* word;
        bool hasWord;
    } cases[] = {
        {u"film", u"film", true},
        {u"", u"film", false},
        {u"film", u"", false},
        {u"film", u"\u0301", false},
        {u"Film, SAD", u"film", true},
        {u"novi FILM", u"film", true},
        {u"filmski", u"film", false},
        {u"telefilm", u"film", false},
        {u"telefilm, film", u"film", false}, // the second one is never looked at
        {u"3film7", u"film", true},
        {u"film-noir", u"film", true},
        {u"film\u2013noir", u"film", false}, // an en dash behind
        {u"\u2013film", u"film", true},      // and one ahead
        {u"\u00a0film", u"film", true},
        {u"film\u00a0noir", u"film", false},
        {u"čfilm", u"film", false},
        {u"жfilm", u"film", false},
        {u"filmč", u"film", false},
        {u"\U0001F3ACfilm", u"film", true},
        {u"film\U0001F3AC", u"film", false},
        {u"dok. film", u"dok.", true},
        {u"dok.film", u"dok.", false},
        {u"dok film", u"dok.", false},
        {u"MUZIČKA emisija", u"muzicka", true},
        {u"muzicka", u"muzička", true},
        {u"muzic\u030cka", u"muzička", true},
        {u"akcja, finále\u0301\u0327!", u"finale", true}, // the boundary lies behind all marks
        {u"finale\u0301\u2013", u"finale", false},
        {u"finale\u0301x", u"finale", false},
        {u"fi\u0301lm", u"film", true},
        {u"\u0301film", u"film", true},            // a mark on its own is no letter
        {u"\u0301\u0301film, SAD", u"film", true}, // nor do several shift the boundary
        {u"fussball", u"fußball", false},
        {u"FUßBALL", u"fußball", true},
        {u"FU\u1E9EBALL", u"fußball", true},
        {u"İSTANBUL", u"istanbul", true},
        {u"ısparta", u"isparta", false},
        {u"ſport", u"sport", true},
        {u"\u212Bland", u"åland", true},
        {u"\u212Aviz", u"kviz", true},
        {u"ΟΔΟΣ", u"οδός", true},
        {u"đak", u"dak", false},
        {u"Łódź", u"łodz", true},
        {u"Вести", u"ВЕСТИ", true},
        {u"ﬁlm", u"film", false}, // a ligature is another letter
        {u"\U0001D400film", u"film", true},
        {u"각", u"가", false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(entryTextHasWord(c.text, c.word), c.hasWord) << named(c.text) << " / " << named(c.word);
}

struct Texts
{
    const char16_t* details;
    const char16_t* title;
    const char16_t* description;
    const char16_t* sourceId;
    TVListingsCategory mask;
};

TVEntry::Text optional(const char16_t* text)
{
    return text ? TVEntry::Text(QString::fromUtf16(text)) : TVEntry::Text();
}

void expectMasks(std::initializer_list<Texts> cases)
{
    for (const Texts& c : cases)
        EXPECT_EQ(
            categoryMaskForTexts(optional(c.sourceId), optional(c.details), optional(c.title), optional(c.description)),
            c.mask)
            << named(c.details) << " / " << named(c.title) << " / " << named(c.description) << " / "
            << named(c.sourceId);
}

TEST(CategoryMask, KeywordsAndBoundaries)
{
    expectMasks({
        {nullptr, nullptr, nullptr, nullptr, 0},
        {u"", u"", u"", u"", 0},
        {u"film, SAD", nullptr, nullptr, nullptr, 0x1},
        {u"dram. film", nullptr, nullptr, nullptr, 0x1001},
        {u"film\u2013SAD", nullptr, nullptr, nullptr, 0},
        {u"film-SAD", nullptr, nullptr, nullptr, 0x1},
        {nullptr, u"Motošport danas", nullptr, nullptr, 0x80}, // a substring, with any diacritics
        {nullptr, u"Kupovina", nullptr, nullptr, 0},
        {nullptr, u"Davis kup", nullptr, nullptr, 0x80},
        {nullptr, u"Opera", nullptr, nullptr, 0x40},
        {nullptr, u"soap opera", nullptr, nullptr, 0x2},
        {nullptr, u"soap opera, koncert", nullptr, nullptr, 0x42},
        {nullptr, u"Ljubavna soap operama, opera", nullptr, nullptr, 0}, // first occurrences alone
        {nullptr, u"filmski maraton", nullptr, nullptr, 0x1},
        {nullptr, u"maraton", nullptr, nullptr, 0x80},
        {nullptr, u"filmski maraton, rally", nullptr, nullptr, 0x1},
        {nullptr, u"dok. o glazbi", nullptr, nullptr, 0x4},
        {u"Vígj., fan. sf", nullptr, nullptr, nullptr, 0x4100},
        {u"poliţist", nullptr, nullptr, nullptr, 0x400},
        {u"polițist", nullptr, nullptr, nullptr, 0x400},
        {u"Law & Order", nullptr, nullptr, nullptr, 0x2},
    });
}

TEST(CategoryMask, MarksOfFilmsThatAreSeries)
{
    expectMasks({
        {u"film, triler, serijski film", nullptr, nullptr, nullptr, 0x2},
        {u"serijski film", u"western", nullptr, nullptr, 0x2},
        {u"ep. akcija", nullptr, nullptr, nullptr, 0x2}, // set behind the mark, cleared by the resolution
        {u"ep. dok.", nullptr, nullptr, nullptr, 0x4},
        {nullptr, u"Kad lišće pada", u"film, drama", nullptr, 0x2},
        {u"film", u"Kad lisce pada", nullptr, nullptr, 0x2},
        {u"film, akcija", u"Kućni ljubimci", nullptr, nullptr, 0},
        {u"film", u"novi", u"kućni ljubimci", nullptr, 0x1},
        {nullptr, u"South Park", u"crtani", nullptr, 0},
        {u"crtani", u"Tom i Džeri", nullptr, nullptr, 0x8},
        {u"film", nullptr, u"reportaža", nullptr, 0x4},
    });
}

TEST(CategoryMask, ShortAbbreviationsAreTheLastResort)
{
    expectMasks({
        {nullptr, nullptr, u"priča", nullptr, 0x8},
        {nullptr, nullptr, u"priča, s.", nullptr, 0x8}, // a children's show wins over a series
        {u"f.", nullptr, u"s.", nullptr, 0x1},
        {u"s.", nullptr, u"f.", nullptr, 0x2},
        {nullptr, u"f.", nullptr, nullptr, 0},
        {nullptr, u"f. s,", nullptr, nullptr, 0x2},
        {nullptr, u"s. ", u"f.", nullptr, 0x2},
        {u"f.", u"serija", nullptr, nullptr, 0x2},
        {u"priča", u"horor", nullptr, nullptr, 0x10000},
    });
}

TEST(CategoryMask, SeedsOfSourceIds)
{
    expectMasks({
        {nullptr, nullptr, nullptr, u"41", 0x8},
        {nullptr, nullptr, nullptr, u"0041", 0x8},
        {nullptr, nullptr, nullptr, u"41ab", 0x8},
        {nullptr, nullptr, nullptr, u"22.5", 0x40},
        {nullptr, nullptr, nullptr, u"211", 0x80},
        {nullptr, nullptr, nullptr, u"63", 0x20},
        {nullptr, nullptr, nullptr, u"182", 0x4},
        {nullptr, nullptr, nullptr, u"89", 0x2},
        {nullptr, nullptr, nullptr, u"41abc", 0},
        {nullptr, nullptr, nullptr, u"12345", 0},
        {nullptr, nullptr, nullptr, u"a41", 0},
        {nullptr, nullptr, nullptr, u" 41", 0},
        {nullptr, nullptr, nullptr, u"٤١", 0},
        {u"film", nullptr, nullptr, u"41", 0x8},
        {u"film", nullptr, nullptr, u"36", 0x1},
        {nullptr, nullptr, u"ser.", u"36", 0x80},
    });
}

TEST(CategoryMask, ContradictionsAreResolvedInOrder)
{
    expectMasks({
        {u"serija, krimi, drama, comedy", nullptr, nullptr, nullptr, 0x2},
        {u"liga, serija, horor", nullptr, nullptr, nullptr, 0x10000},
        {u"serija, show", nullptr, nullptr, nullptr, 0x2},
        {u"show, film", nullptr, nullptr, nullptr, 0x1},
        {u"dok. western", nullptr, nullptr, nullptr, 0x4},
        {u"dok. serija", nullptr, nullptr, nullptr, 0x4},
        {u"crtani, liga", nullptr, nullptr, nullptr, 0x8},
        {u"sf fantasy", nullptr, nullptr, nullptr, 0x4000},
        {u"liga, show", nullptr, nullptr, nullptr, 0x80},
        {u"vijesti, glazba, crtani, dok.", nullptr, nullptr, nullptr, 0x5c},
    });
}

TEST(CategoryFromText, AddsTheBitsOfContainedWords)
{
    const struct
    {
        const char16_t* text;
        TVListingsCategory bits;
    } cases[] = {
        {u"", 0},
        {u"SF", 0x4001},
        {u"sf", 0},
        {u"Znanstvena FANTASTIKA", 0x4001},
        {u"Fantastika", 0x8001},
        {u"fantastika, SF", 0x4001},
        {u"Pustolovni film", 0x201},
        {u"KRIMINALISTIČKI", 0x401},
        {u"kriminalistic\u030cki", 0x401},
        {u"kriminalisticki", 0},
        {u"Serijski film", 0x3},
        {u"Dokumentarna drama", 0x1005},
        {u"Informativni program", 0x10},
        {u"Teleshow", 0x20},
        {u"teleSport, glazba", 0xc0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(categoryFromText(c.text), c.bits) << named(c.text);
}

TEST(TextForCategory, ListsThenGenresThenTheRest)
{
    const struct
    {
        std::int32_t category;
        const char* label;
    } cases[] = {
        {0x1ffff, "All Shows"}, {0x1ff01, "Feature Films"}, {-1, "Evening Shows"},  {-2, "Most Watched"},
        {0, "All Shows"},       {0x20000, "All Shows"},     {0x101, "Comedies"},    {0x3, "Movies"},
        {0x2, "TV Series"},     {0x1ff03, "Comedies"},      {0xc, "Documentaries"}, {-3, "Documentaries"},
        {0x4001, "SF"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(textForCategory(c.category).toStdString(), c.label) << c.category;
}

} // namespace
