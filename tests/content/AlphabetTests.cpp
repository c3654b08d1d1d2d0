#include "TextSupport.h"
#include "content/TVEntry.h"
#include "content/TVEntrySupplementalData.h"

#include <gtest/gtest.h>

using namespace vidora;
using namespace vidora::test;

namespace {

class Alphabet : public ::testing::Test
{
protected:
    ~Alphabet() override { TVEntry::setCyrillicDevice(false); }
};

QString macedonian(const QString& latin)
{
    return *TVEntry::latin2Cyrillic(TVEntry::Text(latin), QStringLiteral("mk"));
}

TEST_F(Alphabet, Letters)
{
    const struct
    {
        const char* latin;
        const char* cyrillic;
    } cases[] = {
        {"", ""},
        {"Dnevnik", "Днeвник"}, // with a Latin e
        {"aeoj AEJO M", "aeoj AEJO M"},
        {"xXqQwWyY", "кKcкКвВиИ"},
        {"đĐćĆčČšŠžŽ", "ђЂћЋчЧшШжЖ"},
        {"ǵǴǰḱẑẐḰ", "ѓЃјќѕЅḰ"},
        {"Njegoš i njiva, Ljubav, ljudi", "Њeгoш и њива, Љубaв, људи"},
        {"NJ LJ DŽ DZH", "НJ ЛJ ДЖ ДЗХ"},
        {"Džep Dzhep džep dzhep", "Џeп Џeп џeп џeп"},
        {"gj Gj kj Kj zh Zh ch Ch sh Sh", "ѓ Ѓ ќ Ќ ж Ж ч Ч ш Ш"},
        {"dz Dz DZ dZ ddz dzz dž", "s s ДЗ дЗ дs sз џ"},
        {"XXz", "KcKcз"},
        {"źŹśŚ", "з\u0301З\u0301ћЋ"},
        {"l\u0302L\u0302n\u0302N\u0302d\u0302D\u0302 J\u030c", "љЉњЊџЏ Ј"},
        {"Већ ћирилица", "Већ ћирилица"},
    };
    for (const auto& [latin, cyrillic] : cases) {
        // The table above is written with Cyrillic а and о for the reader's eye where the letter stays Latin.
        const QString expected = text(cyrillic).replace(u'а', u'a').replace(u'о', u'o');
        const QString result = macedonian(text(latin)).replace(u'а', u'a').replace(u'о', u'o');
        EXPECT_EQ(utf8(result), utf8(expected)) << latin;
    }
}

TEST_F(Alphabet, ALetterWithAMarkIsAnotherCharacter)
{
    const struct
    {
        const char* latin;
        const char* cyrillic;
    } cases[] = {
        {"c\u030cb", "c\u030cб"},       {"b\u200d", "b\u200d"},           {"X\u0301", "X\u0301"},
        {"dz\u030c", "дz\u030c"},       {"d\u0301z", "d\u0301з"},         {"dž\u0301", "џ\u0301"},
        {"\u0600b", "\u0600b"},         {"b\u0600", "б\u0600"},           {"b\u0e33", "b\u0e33"},
        {"b\U0001F3FB", "b\U0001F3FB"}, {"b\U0001F600b", "б\U0001F600б"}, {"b\r\nb", "б\r\nб"},
    };
    for (const auto& [latin, cyrillic] : cases)
        EXPECT_EQ(utf8(macedonian(text(latin))), cyrillic) << latin;
    const QString lone = QChar(0xd83d) + QStringLiteral("b") + QChar(0xdc00);
    EXPECT_EQ(macedonian(lone), QChar(0xd83d) + QStringLiteral("б") + QChar(0xdc00));
}

TEST_F(Alphabet, LanguageAndDeviceDecide)
{
    const struct
    {
        const char* language; // nullptr for none
        bool device;
        bool converted;
    } cases[] = {
        {nullptr, true, false}, {"", true, false},    {"mk", false, true}, {"xx,mk-MK", false, true},
        {"MK", true, false},    {"sr", false, false}, {"sr", true, true},  {"sr-Latn-RS", true, true},
        {"bs", true, true},     {"me", true, true},   {"ru", true, true},  {"hr", true, false},
        {"SR", true, false},
    };
    const TVEntry::Text latin = QStringLiteral("b");
    for (const auto& [language, device, converted] : cases) {
        TVEntry::setCyrillicDevice(device);
        const TVEntry::Text tag = language ? TVEntry::Text(text(language)) : std::nullopt;
        EXPECT_EQ(utf8(TVEntry::latin2Cyrillic(latin, tag)), converted ? "б" : "b") << (language ? language : "nil");
        EXPECT_FALSE(TVEntry::latin2Cyrillic(TVEntry::Text(), tag));
    }
    EXPECT_EQ(TVEntry::latin2Cyrillic(latin, QStringLiteral("hr"))->constData(), latin->constData())
        << "text not shared";
}

TEST_F(Alphabet, DeviceIsCyrillicWhenItsDatesAre)
{
    const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");
    for (const char* locale : {"C", "en_US", "sr_Latn_RS", "tr_TR", "el_GR", "cs_CZ"}) {
        const LocaleScope scope(locale);
        TVEntry::detectAlphabet(now);
        EXPECT_FALSE(TVEntry::cyrillicDevice()) << locale;
    }
    const LocaleScope scope("sr_RS");
    TVEntry::detectAlphabet(now);
    EXPECT_TRUE(TVEntry::cyrillicDevice());
    QLocale::setDefault(QLocale::c());
    TVEntry::detectAlphabet(now);
    EXPECT_TRUE(TVEntry::cyrillicDevice()) << "the flag is never cleared";
}

TEST_F(Alphabet, SupplementalDataIsConvertedOnce)
{
    TVEntrySupplementalData extra;
    EXPECT_TRUE(extra.empty());
    extra.language = QStringLiteral("mk");
    EXPECT_FALSE(extra.empty());
    extra.description = QStringLiteral("Film");
    AttributedText cast;
    cast.append(QStringLiteral("Bin"), smallPrint());
    cast.append(QStringLiteral("b"), {});
    extra.roles = cast;
    extra.updateAlphabet();
    EXPECT_EQ(utf8(extra.description->string()), "Филм");
    EXPECT_EQ(utf8(extra.roles->string()), "Бинб");
    EXPECT_TRUE(extra.roles->isPlain());
    EXPECT_FALSE(extra.directedBy);
    extra.directedBy = QStringLiteral("Bin");
    extra.updateAlphabet();
    EXPECT_EQ(utf8(extra.directedBy), "Bin");

    TVEntrySupplementalData other;
    other.roles = cast;
    other.language = QStringLiteral("hr");
    other.updateAlphabet();
    EXPECT_EQ(*other.roles, cast) << "attributes stay where nothing is converted";
}

} // namespace
