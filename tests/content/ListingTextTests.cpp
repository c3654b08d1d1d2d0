#include "TextSupport.h"
#include "content/ListingText.h"
#include "content/RemarkPatterns.h"
#include "content/TVEntry.h"

#include <chrono>
#include <gtest/gtest.h>

using namespace vidora;
using namespace vidora::test;

namespace {

TEST(ListingText, Titles)
{
    const struct
    {
        const char* given;
        const char* title;
        const char* description;
    } cases[] = {
        {"", "", "nil"},
        {"Dnevnik", "Dnevnik", "nil"},
        {"Slagalica, kviz", "Slagalica", "kviz"},
        {"Slagalica,kviz", "Slagalica", "nil"},
        {"Slagalica, ", "Slagalica", ""},
        {", kviz", "", "kviz"},
        {"Film (R)", "Film", "nil"},
        {"Film\u00a0(R)", "Film", "nil"},
        {"Film\n(R)", "Film", "nil"},
        {"Film(R)", "Film(R)", "nil"},
        {"Film (R", "Film (R", "nil"},
        {"Film (1) ostaje (2) i rep", "Film i rep", "nil"},
        {"Film (1\n2) rep", "Film (1\n2) rep", "nil"},
        {"Film (1\v2) rep", "Film (1\v2) rep", "nil"},
        {"Film (1)\nDrugi (2)", "Film\nDrugi", "nil"},
        {"Film [a] b [c]rep", "Film rep", "nil"},
        {"Film [a (b]) c", "Film [a c", "nil"},
        {"Serija, Epizoda (3/12)", "Serija", "Epizoda (3/12)"},
        {"Serija (R), Epizoda", "Serija", "R), Epizoda"}, // the place is that of the text without the remark
        {"Serija (R), Epizoda (3/12)", "Serija", "nil"},
        {"Gem, set, meč, Finale", "Gem, set, meč", "Finale"},
        {"Gem, set, meč", "Gem, set, meč", "set, meč"},
        {"Gem, set, meč, ", "Gem, set, meč", "set, meč, "},
        {"2,4 djeteta (R), Nova", "2,4 djeteta", "R), Nova"},
        {"ŠUMA STRIBOROVA, EPIZODA", "Šuma Striborova", "EPIZODA"},
        {"D'ARTAGNAN I 'MI' O\u2019BRIEN", "D'artagnan I 'Mi' O\u2019brien", "nil"},
        {"3D S.W.A.T. L''A X-MEN", "3D S.W.A.T. L''A X-Men", "nil"},
        {"E\u0301COLE ǄEP \U00010400\U00010401", "E\u0301cole ǅep \U00010400\U00010429", "nil"},
        {"ΟΔΟΣ", "Οδος", "nil"},
        {"24", "24", "nil"},
        {"TV dnevnik", "TV dnevnik", "nil"},
        {"INTERNI İZBOR", "Interni İzbor", "nil"},
    };
    for (const auto& [given, title, description] : cases) {
        EXPECT_EQ(utf8(showTitle(text(given))), title) << given;
        EXPECT_EQ(utf8(showInstantDescription(text(given))), description) << given;
    }
    const LocaleScope turkish("tr_TR");
    EXPECT_EQ(utf8(showTitle(QStringLiteral("ISPIT İZBOR SIRI"))), "Ispıt İzbor Sırı");
    EXPECT_EQ(utf8(showTitle(QStringLiteral("I\u0307ZBOR"))), "I\u0307zbor"); // the initial keeps its mark
}

TEST(ListingText, Labels)
{
    const struct
    {
        const char* given;
        const char* kept;
    } cases[] = {
        {"Ana, Ivo Redatelj: Petar", "Ana, Ivo"},
        {"Ana : Ivo", "Ana : Ivo"},
        {"Ana a:b: c", "Ana"},
        {"Ana a: ", "Ana a: "},
        {"Ana a:\nb", "Ana"},
        {"Ana a: \nb", "Ana a: \nb"},
        {"Ana a: b\nIvo c: d", "Ana\nIvo"},
        {"a: b", "a: b"},
        {"Ana\u00a0a:\u2009b", "Ana"},
    };
    for (const auto& [given, kept] : cases)
        EXPECT_EQ(utf8(withoutTrailingLabels(text(given))), kept) << given;
    EXPECT_EQ(firstBracketRemark(u"ab[c]d]").start, 2);
    EXPECT_EQ(firstBracketRemark(u"ab[c]d]").length, 5);
    EXPECT_EQ(firstBracketRemark(u"]ab[c\n]").length, 0);
}

struct CleanedDescription
{
    const char* given;
    const char* description;
    const char* roles;
    const char* directedBy;
};

const CleanedDescription cleanedDescriptions[] = {
    {"Priča", "Priča.", "nil", "nil"},
    {"Čekaj...", "Čekaj...", "nil", "nil"},
    {"\r\rPriča.\r", "Priča.", "nil", "nil"},
    {"Prvi red\nnastavak.\nDrugi\n\nTreći\n\n\nČetvrti", "Prvi red nastavak.\nDrugi\nTreći\n Četvrti.", "nil", "nil"},
    {"; Priča", "Priča.", "nil", "nil"},
    {"; ", "", "nil", "nil"},
    {"Priča (više na http://tv.example)(more at http://tv.example) (više na https://tv.example)",
     "Priča  (više na https://tv.example).", "nil", "nil"},
    {"Priča o moru.\nUloge: Ana Anić, Ivo Ivić\nRedatelj: Petar Perić", "Priča o moru.", "Ana Anić, Ivo Ivić",
     "Petar Perić"},
    {"Priča.\r\n\nUloge: Ana Redatelj: Petar\nostatak", "Priča.", "Ana", "Petar"},
    {"Priča. Scenarist i redatelj: P. P. Uloge: Ana", "Priča. .", "Ana", "P. P."},
    {"Redatelj: A\nRežija: B\nCu: C\nD", "", "C", "A"},
    {"Uloge: ", "", "", "nil"},
    {"Cu: X Uloge: Y", "Cu: X .", "Y", "nil"},
    {"Storia.\nRegia - Rossi, Anna, Bruno", "Storia.", "Anna, Bruno", "Rossi"},
    {"Storia, Regia - Rossi,Regia - Verdi\n Anna", "Storia.", "Anna", "Rossi, Verdi"},
    {"Storia. Regia - Rossi", "Storia.", "nil", "Rossi"},
    {"Regia - Rossi, Anna", "Regia - Rossi, Anna.", "nil", "nil"},
    {"Regia - Rossi, Regia - Verdi,, Anna,", "Regia - Rossi.", ", Anna, ", "Rossi, Verdi"},
    {"Storia Regia - ", "Storia.", "nil", "nil"},
};

TEST(ListingText, Descriptions)
{
    for (const auto& [given, description, roles, directedBy] : cleanedDescriptions) {
        TVEntrySupplementalData extra;
        extra.description = text(given);
        descriptionCleanUp(extra, QStringLiteral("tv.example"));
        EXPECT_EQ(utf8(extra.description->string()), description) << given;
        EXPECT_EQ(extra.roles ? utf8(extra.roles->string()) : "nil", roles) << given;
        EXPECT_EQ(utf8(extra.directedBy), directedBy) << given;
    }
}

TEST(ListingText, DescriptionKeepsKnownRolesAndAttributedTexts)
{
    TVEntrySupplementalData extra;
    extra.roles = QStringLiteral("Mia Glazba: Leo");
    descriptionCleanUp(extra, {});
    EXPECT_FALSE(extra.description);
    extra.description = QString();
    descriptionCleanUp(extra, {});
    EXPECT_EQ(utf8(extra.description->string()), "");
    AttributedText heading;
    heading.append(QStringLiteral("Uloge: Ana"), smallPrint());
    extra.description = heading;
    descriptionCleanUp(extra, {});
    EXPECT_EQ(extra.description, heading);
    extra.description = QStringLiteral("Priča.\nUloge: Ana");
    descriptionCleanUp(extra, {});
    EXPECT_EQ(utf8(extra.roles->string()), "Mia");
}

TEST(PageText, Trim)
{
    const struct
    {
        const char* given;
        const char* expected;
    } cases[] = {
        {"", "nil"},
        {" . - ( ", "nil"},
        {"(Film) ", "Film)"},
        {"\t\v \"Film\"...\r\n", "Film\"..."},
        {"a   b  c    d", "a  b c  d"},
        {"\u00a0Film\u00a0", "\u00a0Film\u00a0"},
        {"\u2013Film", "\u2013Film"},
        {"\x7f", "\x7f"},
        {"@[`{~!0", "0"},
    };
    for (const auto& [given, expected] : cases)
        EXPECT_EQ(utf8(trimmedListingText(text(given))), expected) << given;
}

TEST(PageText, References)
{
    const struct
    {
        const char* given;
        const char* expected;
    } cases[] = {
        {"", ""},
        {"a&amp;b &lt;i&gt; &apos;&quot;", "a&b <i> '\";"},
        {"&amp;lt; &amp;amp; &lt;amp;", "< &amp; <amp;"},
        {"&AMP; &nbsp;", "&AMP; &nbsp;"},
        {"&#x41;&#X41;&#65;&#x10d;&#x10D;", "A&#X41;Ačč"},
        {"&#;&#x;&#6x;&#x4g;&#65", "&#;&#x;&#6x;&#x4g;&#65"},
        {"&#&#65;&#x&#x41;", "&#A&#xA"},
        {"&#x26;#65;&amp;#65;", "AA"},
        {"a<![CDATA[&amp;&#65;]]>&amp;b]]>", "a&amp;&#65;&b]]>"},
        {"&amp;<![CDATA[&amp;", "&&amp;"},
        {"&am<![CDATA[]]>p;<![CDATA[x]]>", "&amp;<![CDATA[x]]>"},
    };
    for (const auto& [given, expected] : cases)
        EXPECT_EQ(utf8(htmlCleanUp(text(given))), expected) << given;
    // A reference stands for one unit of text.
    EXPECT_EQ(htmlCleanUp(QStringLiteral("&#0;&#65601;")), QStringView(u"\0A", 2).toString());
    EXPECT_EQ(htmlCleanUp(QStringLiteral("&#99999999999999999999;")), QString(QChar(0xffff)));
}

TEST(PageText, WhiteSpace)
{
    EXPECT_EQ(utf8(whitespaceCleanUp(text("\u2003\u00a0\r\n a    b  \u3000c\u2028\x0b"))), "a  b \u3000c");
    EXPECT_EQ(utf8(whitespaceCleanUp(text(" \n "))), "");
}

// A scanner that looks back over what it has seen takes minutes for these.
TEST(ListingText, TimeIsLinearInHostileTexts)
{
    constexpr qsizetype length = 1'000'000;
    const auto start = std::chrono::steady_clock::now();
    for (const char* piece : {" (", "[", " (a)", " a:", "a: ", ", Regia - ", "Uloge: ", "&#x", "&amp;", "<![CDATA[",
                              "\\n", "\n", "X", "dz", "b\u0301", "A'"}) {
        const QString hostile = text(piece).repeated(length / text(piece).size());
        showTitle(hostile);
        showInstantDescription(hostile);
        trimmedListingText(hostile);
        htmlCleanUp(hostile);
        TVEntrySupplementalData extra;
        extra.description = hostile;
        descriptionCleanUp(extra, QStringLiteral("tv.example"));
        TVEntry entry;
        entry.setLanguage(QStringLiteral("mk"));
        entry.setIdentificator(hostile);
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

} // namespace
