#include "TextSupport.h"
#include "content/BroadcastTime.h"
#include "content/TVEntry.h"

#include <gtest/gtest.h>
#include <thread>

using namespace vidora;
using namespace vidora::test;

namespace {

const QString scheme = QStringLiteral("vidora");

ObjectId someChannel()
{
    return ObjectId::initWithHex(u"0123456789abcdef01234567");
}

Instant at(const char* iso)
{
    return *instantFromIsoText(text(iso));
}

TEST(ObjectId, ReadsPairsAsAHexadecimalScannerDoes)
{
    const struct
    {
        const char* hex;
        const char* expected;
    } cases[] = {
        {"0123456789abcdefABCDEF99", "0123456789abcdefabcdef99"},
        {"0123456789abcdefABCDEF9", "000000000000000000000000"},
        {"0123456789abcdefABCDEF999", "000000000000000000000000"},
        {"", "000000000000000000000000"},
        {"5gg5 7\t80x0Xx9-1+2\u00a0ff€  ", "0500070800000000000f0f00"},
    };
    for (const auto& [hex, expected] : cases)
        EXPECT_EQ(utf8(ObjectId::initWithHex(text(hex)).hex()), expected) << hex;
    EXPECT_EQ(ObjectId().hash(), 5381 * 1667889514952984961ULL); // 33 to the 12th, in 64 bits
    EXPECT_EQ(ObjectId::initWithData(someChannel().data()), someChannel());
    EXPECT_EQ(ObjectId::initWithData(someChannel().data().left(11)), ObjectId());
}

TEST(TVEntry, TitleLosesWrittenLineFeeds)
{
    const struct
    {
        const char* given;
        const char* kept;
    } cases[] = {
        {"", ""},       {"Film\\nfilm", "Filmfilm"}, {"Film\nfilm", "Film\nfilm"}, {"\\\\nn", "\\n"}, {"\\n\\n", ""},
        {"a\\", "a\\"},
    };
    for (const auto& [given, kept] : cases) {
        TVEntry entry;
        entry.setIdentificator(text(given));
        EXPECT_EQ(utf8(entry.identificator()), kept);
        EXPECT_EQ(utf8(entry.title()), kept);
    }
    TVEntry entry;
    entry.setIdentificator(QStringLiteral("ŠUMA I"));
    const LocaleScope turkish("tr_TR");
    entry.setIdentificator(QStringLiteral("ŠUMA II"));
    EXPECT_EQ(utf8(entry.lowercasedIdentificator()), "šuma ii") << "comparisons don't follow the device";
}

TEST(TVEntry, ShownFormsFollowTheLanguage)
{
    TVEntry entry;
    EXPECT_FALSE(entry.title());
    entry.setLanguage(QStringLiteral("mk"));
    EXPECT_FALSE(entry.title());
    entry.setIdentificator(QStringLiteral("Film"));
    entry.setSubtitle1(QStringLiteral("Bin"));
    EXPECT_EQ(utf8(entry.title()), "Филм");
    EXPECT_EQ(utf8(entry.subtitle()), "Бин");
    EXPECT_EQ(utf8(entry.subtitle1()), "Bin");
    entry.setLanguage({});
    EXPECT_EQ(utf8(entry.title()), "Film");
    EXPECT_EQ(utf8(entry.subtitle()), "Bin");
    EXPECT_FALSE(entry.instantDetails());

    entry.setChannel(ObjectId::initWithHex(u"58f4ded60befe78cb336a80b"));
    EXPECT_EQ(utf8(entry.title()), "Bin");
    entry.setSubtitle1({});
    EXPECT_FALSE(entry.title());
    EXPECT_EQ(utf8(entry.identificator()), "Film");
}

TEST(TVEntry, FullInstantDetails)
{
    using Text = TVEntry::Text;
    const Text none, empty = QString(), a = QStringLiteral("a"), b = QStringLiteral("b"), c = QStringLiteral("c");
    const struct
    {
        Text details, subtitle, description;
        const char* expected;
    } cases[] = {
        {a, b, c, "a, b, c"},      {none, none, c, "c"},        {empty, b, none, "b"},    {a, empty, c, "a, c"},
        {none, none, none, "nil"}, {none, empty, empty, "nil"}, {empty, empty, none, ""}, {a, none, none, "a"},
    };
    for (const auto& [details, subtitle, description, expected] : cases) {
        TVEntry entry;
        entry.setInstantDetails1(details);
        entry.setSubtitle1(subtitle);
        entry.setInstantDescription1(description);
        EXPECT_EQ(utf8(entry.fullInstantDetails()), expected);
        const bool cached = entry.fullInstantDetails().has_value();
        entry.setSubtitle1(QStringLiteral("late"));
        EXPECT_EQ(utf8(entry.fullInstantDetails()), cached ? expected : "late");
        EXPECT_NE(utf8(TVEntry(entry).fullInstantDetails()).find("late"), std::string::npos) << "a copy has own caches";
    }
}

TEST(TVEntry, Digest)
{
    const struct
    {
        const char* date;
        const char* title;
        const char* digest;
    } cases[] = {
        {"2026-11-22T19:00:00Z", "Dnevnik", "c0b7b66c82d2403b3106656089d88a817"},
        {"2026-11-22T19:00:00Z", "Ćirilica", "dcd6377451dac6e4f566f6ed3228d2d3"},
        {"2026-11-22T18:59:59.5Z", "Vesti", "b26519bdf81a0bd1d773ef52e7349044"},
        {"2026-11-22T19:00:00.499Z", "Slagalica", "e5749ecf947f276629c0095143035674"},
        {"2026-11-22T19:00:00.5Z", "Dnevnik", "c4ad4ba761652b36dafd6f54d732dfd83"},
        {"2000-12-31T23:59:59.5Z", "Dnevnik", "c524ce68ad0e194b18b071d6165cfbd47"}, // half a second before 2001
    };
    for (const auto& [date, title, digest] : cases) {
        const auto url = TVEntry::urlDigestFromChannel(someChannel(), at(date), text(title), scheme);
        EXPECT_EQ(utf8(url->text()), std::string("vidora://") + digest) << date;
    }
    EXPECT_FALSE(TVEntry::urlDigestFromChannel(someChannel(), at("2026-11-22T19:00:00Z"), {}, scheme));
}

TEST(TVEntry, DigestIsKeptUntilChannelOrTimeChange)
{
    TVEntry entry;
    EXPECT_FALSE(entry.urlDigestWithScheme(scheme));
    entry.setIdentificator(QStringLiteral("Dnevnik"));
    entry.setChannel(someChannel());
    entry.setDateTime(at("2026-11-22T19:00:00Z"));
    const auto first = entry.urlDigestWithScheme(scheme);
    EXPECT_EQ(utf8(first->text()), "vidora://c0b7b66c82d2403b3106656089d88a817");
    entry.setIdentificator(QStringLiteral("Vesti"));
    EXPECT_EQ(entry.urlDigestWithScheme(QStringLiteral("other")), first);
    entry.setDateTime(entry.dateTime());
    EXPECT_EQ(utf8(entry.urlDigestWithScheme(scheme)->text()), "vidora://b26519bdf81a0bd1d773ef52e7349044");
    entry.setChannel(ObjectId());
    EXPECT_NE(entry.urlDigestWithScheme(scheme)->text(), QStringLiteral("vidora://b26519bdf81a0bd1d773ef52e7349044"));
}

TEST(TVEntry, CachesFillFromManyThreads)
{
    TVEntry entry;
    entry.setIdentificator(QStringLiteral("Dnevnik"));
    entry.setSubtitle1(QStringLiteral("Vesti"));
    const auto expected = TVEntry(entry).urlDigestWithScheme(scheme);
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i) {
        readers.emplace_back([&] {
            EXPECT_EQ(entry.urlDigestWithScheme(scheme), expected);
            EXPECT_EQ(utf8(entry.fullInstantDetails()), "Vesti");
        });
    }
    for (std::thread& reader : readers)
        reader.join();
}

// The zone of the tests is three and a half hours behind UTC.
TEST(BroadcastTime, LinesUpInAllLocales)
{
    const struct
    {
        const char* locale;
        const char* morning;
        const char* evening;
    } cases[] = {
        {"en_GB", "09:05", "21:05"},       {"en_US", "09:05am", "09:05pm"},     {"cs_CZ", "09:05", "21:05"},
        {"C", "09:05", "21:05"},           {"el_GR", "09:05π.μ.", "09:05μ.μ."}, {"fi_FI", "09.05", "21.05"},
        {"ko_KR", "오전9:05", "오후9:05"}, {"fr_CA", "09h 05", "21h 05"},       {"zh_TW", "上午9:05", "下午9:05"},
    };
    for (const auto& [locale, morning, evening] : cases) {
        const LocaleScope scope(locale);
        EXPECT_EQ(utf8(broadcastTimeText(at("2026-11-22T12:35:00Z"))), morning) << locale;
        EXPECT_EQ(utf8(broadcastTimeText(at("2026-11-23T00:35:00Z"))), evening) << locale;
    }
}

TEST(TVEntry, HumanTexts)
{
    TVEntry entry;
    entry.setIdentificator(QStringLiteral("Dnevnik"));
    EXPECT_EQ(utf8(entry.humanWithColor(QStringLiteral("label"), true).string()), "Dnevnik");
    entry.setDateTime(at("2026-11-22T19:00:00Z"));
    entry.setEndDateTime(at("2026-11-22T19:30:00Z"));

    const AttributedText full = entry.humanWithColor(QStringLiteral("label"), true);
    EXPECT_EQ(utf8(full.string()), "15:3016:00Dnevnik");
    ASSERT_EQ(full.runs().size(), 3u);
    EXPECT_EQ(full.runs()[0].attributes.givenColour, QStringLiteral("label"));
    EXPECT_EQ(full.runs()[1].attributes.baselineOffset, 11);
    EXPECT_FALSE(full.isPlain());

    const AttributedText condensed = entry.humanCondensedWithColor(QStringLiteral("label"), false);
    EXPECT_EQ(utf8(condensed.string()), "15:30 Dnevnik");
    EXPECT_EQ(condensed.runs()[1].attributes, full.runs()[2].attributes);
    EXPECT_EQ(utf8(entry.humanCondensedWithColor({}, true).string()), "15:30 Dnevnik❤️");
}

} // namespace
