#include "listings/XMLTVEntryFinishing.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

using Text = const char*; // null: absent

std::optional<QString> given(Text text)
{
    return text ? std::optional{QString::fromUtf8(text)} : std::nullopt;
}

struct Given
{
    Text title = "t";
    Text subtitle = nullptr;
    Text description = nullptr;
    Text category = nullptr;
    Text roles = nullptr;
    TVListingsCategory categories = 0;
};

ExtendedTVEntry finish(const Given& texts)
{
    XMLTVProgramme programme;
    programme.title = given(texts.title);
    programme.subtitle = given(texts.subtitle);
    programme.description = given(texts.description);
    programme.category = given(texts.category);
    programme.roles = given(texts.roles);
    programme.categories = texts.categories;
    return finishEntry(std::move(programme), QStringLiteral("credits.example"));
}

std::string shown(const std::optional<QString>& text)
{
    return text ? text->toStdString() : "nil";
}

TEST(XMLTVEntryFinishing, TakesTheSubtitleApart)
{
    const struct
    {
        Text subtitle;
        TVListingsCategory categories;
        Text details, kept; ///< null: nil
    } cases[] = {
        {nullptr, 0, nullptr, nullptr},
        {"Plain", 0, nullptr, "Plain"},
        {"", 0, nullptr, nullptr},
        {" \t\n", 0, nullptr, nullptr},
        {"[film, Drama]", 0x1001, nullptr, nullptr},
        {"Title [FILM]\n[Krimi] end", 0x401, nullptr, "Title \n end"},
        {"[film] A [Krimi]", 0x401, nullptr, nullptr}, // greedy: one group
        {"A ] B [x", 0, nullptr, "A ] B [x"},
        {"A ] [News", 0, nullptr, "A ] [News"},
        {"[Sitcom\n] A", 0, nullptr, "[Sitcom\n] A"},
        {"[Sitcom]. (Kuća)", 0x2, nullptr, "Kuća"},
        {"[Sitcom], Kuća", 0x2, nullptr, "Kuća"},
        {"[Sitcom] . Kuća", 0x2, nullptr, "Kuća"},
        {"[a]. \n[b] Kuća", 0, nullptr, "Kuća"},
        {"[METEO]", 0, nullptr, nullptr},
        {"[Meteo]", 0x10, nullptr, nullptr},
        {"[SÉRIE]", 0x2, nullptr, nullptr},
        {"[science-fiction]", 0xc001, nullptr, nullptr},
        {"[muzyczny]", 0x41, nullptr, nullptr},
        {"(drama)", 0x1001, "drama", nullptr},
        {"(Drama)", 0, nullptr, "Drama"},
        {"dokumentarni sf", 0x4005, "dokumentarni sf", nullptr},
        {"sportski show", 0xa0, "sportski show", nullptr},
        {"glazba [x]", 0x40, "glazba", nullptr},
        {"((Oko))", 0, nullptr, "Oko"},
        {"((A)", 0, nullptr, "((A)"},
        {"(A) i (B)", 0, nullptr, "(A) i (B)"},
        {"A (1)", 0, nullptr, "A (1)"},
        {"( A )", 0, nullptr, nullptr},
        {"(7)", 0, nullptr, "7"},
        {"A)", 0, nullptr, "A)"},
        {"A (", 0, nullptr, "A ("},
    };
    for (const auto& c : cases) {
        const ExtendedTVEntry entry = finish({.subtitle = c.subtitle});
        EXPECT_EQ(entry.categories, c.categories) << shown(given(c.subtitle));
        EXPECT_EQ(shown(entry.basic->instantDetails1()), shown(given(c.details))) << shown(given(c.subtitle));
        EXPECT_EQ(shown(entry.basic->subtitle1()), shown(given(c.kept))) << shown(given(c.subtitle));
    }
}

TEST(XMLTVEntryFinishing, ReadsMarksOfTheTitle)
{
    const struct
    {
        Text title, kept, second;
        TVListingsCategory categories;
        bool isRepeat;
    } cases[] = {
        {"Velo misto (R)", "Velo misto", nullptr, 0, true},
        {"Doktor [Repris]", "Doktor ", nullptr, 0, true},
        {"Inspektor, serija (4/12)", "Inspektor", "serija (4/12)", 0x2, false},
        {"Kruh, igrani film", "Kruh", "igrani film", 0x1, false},
        {"Sova, za djecu, dokumentarna", "Sova", "za djecu, dokumentarna", 0xc, false},
        {"Episodul 3", "Episodul 3", nullptr, 0x2, false},
        {"Gem, set, meč, dokumentarna", "Gem, set, meč", "dokumentarna", 0x4, false},
        {"Discovery sat", "Discovery sat", nullptr, 0x4, false},
        {"VIJESTI", "Vijesti", nullptr, 0, false},
    };
    for (const auto& c : cases) {
        const ExtendedTVEntry entry = finish({.title = c.title});
        EXPECT_EQ(shown(entry.basic->identificator()), c.kept);
        EXPECT_EQ(shown(entry.basic->instantDescription1()), shown(given(c.second))) << c.title;
        EXPECT_EQ(entry.categories, c.categories) << c.title;
        EXPECT_EQ(entry.basic->previouslyShown(), c.isRepeat) << c.title;
    }
    const ExtendedTVEntry channelName = finish({.title = "Viasat vikend", .subtitle = "Rijeka"});
    EXPECT_EQ(shown(channelName.basic->instantDetails1()), "Rijeka");
    EXPECT_EQ(shown(channelName.basic->subtitle1()), "nil");
}

TEST(XMLTVEntryFinishing, JoinsWhatTextsSayOfTheKind)
{
    const struct
    {
        const char* name;
        Given given;
        TVListingsCategory categories;
    } cases[] = {
        {"description", {.description = "dramska serija, glaz. i infor. zab."}, 0x1072},
        {"case of the description", {.description = "comedy drama horror"}, 0},
        {"cast list", {.description = "Priča.\nUloge: A B"}, 0x1},
        {"cast of a series", {.roles = "A", .categories = 0x2}, 0x2},
        {"second half of the title against the cast", {.title = "A, B (1/2)", .description = "Uloge: B"}, 0x2},
        {"category", {.category = "Kriminalistički FILM"}, 0x401},
        {"series keeps its genre", {.category = "serija, drama"}, 0x1002},
        {"given bits", {.categories = 0x210}, 0x210},
    };
    for (const auto& c : cases)
        EXPECT_EQ(finish(c.given).categories, c.categories) << c.name;
    const ExtendedTVEntry entry = finish({.description = "Priča o otoku.\nUloge: A B, C D\nRedatelj: E F"});
    EXPECT_EQ(entry.extra->description->string().toStdString(), "Priča o otoku.");
    EXPECT_EQ(entry.extra->roles->string().toStdString(), "A B, C D");
    EXPECT_EQ(shown(entry.extra->directedBy), "E F");
}

/// A reading that starts anew with each group would take minutes here.
TEST(XMLTVEntryFinishing, IsLinearInTheSubtitle)
{
    XMLTVProgramme programme;
    programme.title = QStringLiteral("t");
    programme.subtitle = QString{QStringLiteral("Kraj") + QStringLiteral("[x]\n").repeated(300'000)};
    EXPECT_EQ(shown(finishEntry(programme, {}).basic->subtitle1()), "Kraj");
    programme.subtitle = QString(1'000'000, u'[') + QString(1'000'000, u'(');
    EXPECT_EQ(finishEntry(programme, {}).categories, 0u);
}

} // namespace
} // namespace vidora
