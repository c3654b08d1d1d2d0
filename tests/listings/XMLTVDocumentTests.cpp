#include "listings/XMLTVDocument.h"

#include <gtest/gtest.h>
#include <ostream>

namespace vidora {
namespace {

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");

/// One programme as text: only what is set, in a fixed order.
std::string describe(const XMLTVProgramme& programme)
{
    QString text;
    const auto add = [&](const char* name, const std::optional<QString>& value) {
        if (value)
            text += QLatin1String(name) + u'<' + *value + QLatin1String("> ");
    };
    add("", programme.title);
    add("sub", programme.subtitle);
    add("desc", programme.description);
    add("roles", programme.roles);
    add("by", programme.directedBy);
    add("category", programme.category);
    if (programme.icon)
        add("icon", programme.icon->text());
    if (programme.categories)
        text += QStringLiteral("0x%1 ").arg(programme.categories, 0, 16);
    if (programme.previouslyShown)
        text += QStringLiteral("repeat ");
    return text.trimmed().toStdString();
}

struct Options
{
    QStringList channels = {};
    std::optional<QString> pictures = QStringLiteral("http://p.example/");
    std::size_t chunk = 0; ///< 0: all at once
};

std::vector<XMLTVProgramme> read(std::string_view document, const Options& options = {})
{
    const XMLTVSelection selection{options.channels, now, options.pictures};
    std::vector<XMLTVProgramme> programmes;
    XMLTVDocument reader{selection, [&](XMLTVProgramme&& programme) { programmes.push_back(std::move(programme)); }};
    const std::size_t chunk = options.chunk ? options.chunk : std::max<std::size_t>(document.size(), 1);
    for (std::size_t position = 0; position < document.size(); position += chunk)
        reader.feed(document.substr(position, chunk));
    reader.finish();
    return programmes;
}

std::string described(std::string_view document, const Options& options = {})
{
    std::string text;
    for (const XMLTVProgramme& programme : read(document, options))
        text += (text.empty() ? "" : "; ") + describe(programme);
    return text;
}

std::string programme(const std::string& children)
{
    return R"(<programme channel="a" start="20261122190000 +0000" stop="20261122200000 +0000">)" + children +
           "</programme>";
}

struct Case
{
    const char* name;
    std::string document;
    const char* expected;
};

void PrintTo(const Case& c, std::ostream* out)
{
    *out << c.name;
}

class XMLTVDocumentReading : public ::testing::TestWithParam<Case>
{
};

/// Where a buffer ends must not show: the least buffers cut every reference, line end and letter.
TEST_P(XMLTVDocumentReading, GivesTheSameInAnyPieces)
{
    for (const std::size_t chunk : {0, 1, 2, 3, 7, 16, 61})
        EXPECT_EQ(described(GetParam().document, {.chunk = chunk}), GetParam().expected) << "buffers of " << chunk;
}

std::string tv(const std::string& content)
{
    return "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?>\n<!DOCTYPE tv SYSTEM \"xmltv.dtd\">\n<tv>" + content +
           "</tv>";
}

INSTANTIATE_TEST_SUITE_P(
    All, XMLTVDocumentReading,
    ::testing::Values(
        Case{"everyField",
             tv(programme("\n <title lang=\"hr\">Čudesni svijet</title><sub-title>Žaba</sub-title><desc>Opis</desc>"
                          "<credits><director>A B</director><director>C</director><actor>D</actor><actor>E F</actor>"
                          "</credits><category desc=\"Drama\">film</category><icon src=\"http://x.example/1.png\"/>"
                          "<previously-shown/><episode-num system=\"onscreen\">S1</episode-num>")),
             "<Čudesni svijet> sub<Žaba> desc<Opis> roles<D, E F> by<A B, C> category<film> "
             "icon<http://x.example/1.png> 0x1003 repeat"},
        Case{"textJoinedAcrossReferencesAndMarkup",
             tv(programme("<title>Tom &amp; Je<!-- x -->rry &#x17E;<?y z?>e <![CDATA[& <b>]]></title>")),
             "<Tom & Jerry že & <b>>"},
        Case{"firstTitleOnly", tv(programme("<title>A</title><title>B</title>")), "<A>"},
        Case{"titleEndsAtFirstChild", tv(programme("<title>A<b>x</b>B</title>")), "<A>"},
        Case{"titleWithoutEscapedLineFeeds", tv(programme("<title>A\\nB\\&#110;C\\\\nD\nE</title>")), "<ABC\\D\nE>"},
        Case{"noTitleNoShow", tv(programme("<desc>A</desc>") + programme("<title>B</title>")), "<B>"},
        Case{"placeholders",
             tv(programme("<title>NEMA INFORMACIJA</title>") + programme("<title>Nema informacija o programu</title>") +
                programme("<title>Nema informacija</title><desc>B</desc>")),
             "<Nema informacija> desc<B>"},
        Case{"digitPiecesOfSubtitle",
             tv(programme("<title>t</title><sub-title>12. dio</sub-title>") +
                programme("<title>t</title><sub-title>Dio\n12</sub-title>") +
                programme("<title>t</title><sub-title>Rat &amp;1. dio</sub-title>") +
                programme("<title>t</title><sub-title>A&#49;<!-- x -->2 B<x/> C</sub-title>") +
                programme("<title>t</title><sub-title>A<![CDATA[1]]></sub-title>")),
             "<t>; <t> sub<Dio\n12>; <t> sub<Rat &>; <t> sub<A>; <t> sub<A1>"},
        Case{"blanksOfDescriptionFoldedByPiece",
             tv(programme("<title>a    b</title><desc>a    b  c \n d &amp;   e<!-- --> f </desc>")),
             "<a    b> desc<a b c \n d & e f >"},
        Case{"lineEnds", tv(programme("<title>a\r\nb\rc&#13;d</title>")), "<a\nb\nc\rd>"},
        Case{"emptyCredits", tv(programme("<title>t</title><actor/><actor>A</actor><actor/>")), "<t> roles<A, >"},
        Case{"categoryWords",
             tv(programme("<title>t</title><category desc=\"News\"/><category desc=\"news\">A</category>"
                          "<category desc=\"Animated\">B</category>")),
             "<t> category<AB> 0x11"},
        Case{"lastImagePieceCounts", tv(programme("<title>t</title><icon src=\"i\"/><image>a?b&amp;c</image>")),
             "<t> icon<http://p.example/c>"},
        Case{"internalEntity",
             "<!DOCTYPE tv [<!ENTITY n \"7 Nova\nTV\"><!ENTITY x SYSTEM \"file:///etc/hostname\">]><tv>" +
                 programme("<title>A &n; &x;B</title><sub-title>C&n;D&x;1</sub-title>") + "</tv>",
             "<A 7 Nova\nTV B> sub<CD>"},
        Case{"undeclaredEntityWithForeignDtd", tv(programme("<title>A&nbsp;B</title>")), "<AB>"},
        Case{"malformedKeepsWhatCameBefore",
             "<tv>" + programme("<title>A</title>") + programme("<title>B</x>") + programme("<title>C</title>"), "<A>"},
        Case{"cutOff", "<tv>" + programme("<title>A</title>") + programme("<title>B</title>").substr(0, 80), "<A>"},
        Case{"zeroByteEnds",
             "<tv>" + programme("<title>A</title>") + std::string(1, '\0') + programme("<title>B</title>"), "<A>"},
        Case{"nestedProgramme", tv(programme("<title>A</title>" + programme("<title>B</title>") + "<title>C</title>")),
             "<B>"},
        Case{"namesAreQualified", tv(programme("<x:title>A</x:title><title>B</title>")), "<B>"},
        Case{"byteOrderMark",
             "\xef\xbb\xbf" + tv(programme("<title>\xef\xbb\xbf"
                                           "A</title>")),
             "<\xef\xbb\xbf"
             "A>"}),
    [](const auto& parameter) { return std::string{parameter.param.name}; });

std::string timed(const std::string& attributes)
{
    return "<programme " + attributes + "><title>t</title></programme>";
}

TEST(XMLTVDocument, TakesWhatIsWantedAndNotOver)
{
    const std::string document =
        "<tv>" + timed(R"(channel="a" start="20261122180000 +0000" stop="20261122190000 +0000")") // ends now
        + timed(R"(channel="a" start="20261122180000 +0000" stop="20261122190001 +0000")") +
        timed(R"(channel="a" start="20261122190000 +0000" stop="20261122200000")") // no offset
        + timed(R"(channel="a" start="20261122190000 +0000")") +
        timed(R"(channel="a" start="soon" stop="20261122200000 +0000")") +
        timed(R"(channel="b Plus1 c" start="20261122193000 +0000" stop="20261122200001 +0000")") +
        timed(R"(channel="Plus1" start="20261122193000 +0000" stop="20261122200000 +0000")") // an hour ago
        + timed(R"(channel="ž" start="20261122190000 +0000" stop="20261122200000 +0000")") +
        timed(R"(start="20261122190000 +0000" stop="20261122200000 +0000")") + "</tv>";
    const auto found = [&](QStringList channels) {
        std::string text;
        for (const XMLTVProgramme& programme : read(document, {.channels = std::move(channels)})) {
            text += programme.sourceId.toStdString() + ' ' +
                    (programme.start ? isoText(*programme.start).mid(11, 8).toStdString() : "never") + ' ' +
                    isoText(programme.stop).mid(11, 8).toStdString() + "; ";
        }
        return text;
    };
    EXPECT_EQ(found({}), "a 18:00:00 19:00:01; a never 20:00:00; b Plus1 c 18:30:00 19:00:01; ž 19:00:00 20:00:00; ");
    EXPECT_EQ(found({QStringLiteral("ž"), QStringLiteral("A")}), "ž 19:00:00 20:00:00; ");
    EXPECT_EQ(found({QString{}}), "");
}

TEST(XMLTVDocument, UsesImagesOnlyWhereAsked)
{
    const std::string document = tv(programme("<title>t</title><image>a.png</image>"));
    EXPECT_EQ(described(document, {.pictures = std::nullopt}), "<t>");
}

std::string repeated(std::string_view text, std::size_t count)
{
    std::string result;
    result.reserve(text.size() * count);
    while (count--)
        result += text;
    return result;
}

/// Each of these once took memory, stack or time out of proportion in some reader of such documents.
TEST(XMLTVDocument, BoundsHostileInput)
{
    std::string laughs = "<!DOCTYPE tv [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const std::string inner = "&a" + std::to_string(i - 1) + ';';
        laughs += "<!ENTITY a" + std::to_string(i) + " \"" + repeated(inner, 10) + "\">";
    }
    std::string chain = "<!DOCTYPE tv [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 100'000; ++i)
        chain += "<!ENTITY a" + std::to_string(i) + " \"&a" + std::to_string(i - 1) + ";\">";
    const std::string first = programme("<title>A</title>");
    EXPECT_EQ(described(laughs + "]><tv>" + first + programme("<title>&a29;</title>") + "</tv>"), "<A>");
    EXPECT_EQ(described(chain + "]><tv>" + first + programme("<title>&a99999;</title>") + "</tv>"), "");
    EXPECT_EQ(described("<tv>" + first + repeated("<x>", 1'000'000) + programme("<title>B</title>")), "<A>");
    EXPECT_EQ(described("<tv>" + first + "<x y='" + repeated("z", 20'000'000) + "'/>" + first + "</tv>"), "<A>");
    EXPECT_EQ(described("<tv>" + first + repeated("<x>", 1'000) + repeated("</x>", 1'000) + first + "</tv>"),
              "<A>; <A>")
        << "deep is not yet hostile";
    const auto large = read(
        "<tv>" + programme("<title>A</title><desc>" + repeated("0123456789&amp;", 1'000'000) + "</desc>") + "</tv>");
    ASSERT_EQ(large.size(), 1u);
    EXPECT_LE(large[0].description->size(), 4 * 1024 * 1024);
}

} // namespace
} // namespace vidora
