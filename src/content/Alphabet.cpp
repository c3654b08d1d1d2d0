// Serbian, Bosnian, Montenegrin and Macedonian in Latin letters to Cyrillic, letter by letter, without a dictionary.
#include "content/LiteralSearch.h"
#include "content/TVEntry.h"
#include "platform/DeviceSettings.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <array>
#include <atomic>
#include <string_view>

namespace vidora {

namespace {

std::atomic<bool> cyrillicFlag = false;

// Indexed alike. e, E and M map to themselves; a, o, j, A, O, J look the same in both alphabets and are in neither.
constexpr std::u16string_view latinLetters = u"bcčćdđefgǵhiǰkḱlmnpqrsštuvwxyzžẑBCČĆDĐEFGǴHIKLMNPQRSŠTUVWYZŽẐ";
constexpr std::u16string_view cyrillicLetters = u"бцчћдђeфгѓхијкќлмнпкрсштуввкизжѕБЦЧЋДЂEФГЃХИКЛMНПКРСШТУВВИЗЖЅ";
static_assert(latinLetters.size() == 61 && cyrillicLetters.size() == 61);

constexpr auto counterparts = [] {
    std::array<char16_t, 0x200> table{};
    for (std::size_t i = 0; i < latinLetters.size(); ++i) {
        if (latinLetters[i] < table.size())
            table[latinLetters[i]] = cyrillicLetters[i];
    }
    return table;
}();

/// The Cyrillic letter for a Latin one; 0 for what is not in the table.
char16_t counterpart(char16_t unit)
{
    if (unit < counterparts.size())
        return counterparts[unit];
    if (unit < u'ḱ' || unit > u'ẑ')
        return 0;
    const std::size_t at = latinLetters.find(unit);
    return at == std::u16string_view::npos ? u'\0' : cyrillicLetters[at];
}

struct Spelling
{
    std::u16string_view latin;
    std::u16string_view cyrillic;
};

// Letters written with two or three, in the order in which they are tried. No two of them overlap in a text but "dzh"
// and "zh", and nothing put in takes part in another one: that is why one pass does for all of them.
constexpr Spelling spellings[] = {
    {u"dzh", u"џ"},     {u"Dzh", u"Џ"},     {u"lj", u"љ"},      {u"Lj", u"Љ"},      {u"nj", u"њ"},
    {u"Nj", u"Њ"},      {u"dž", u"џ"},      {u"Dž", u"Џ"},      {u"gj", u"ѓ"},      {u"Gj", u"Ѓ"},
    {u"zh", u"ж"},      {u"Zh", u"Ж"},      {u"kj", u"ќ"},      {u"Kj", u"Ќ"},      {u"ch", u"ч"},
    {u"Ch", u"Ч"},      {u"sh", u"ш"},      {u"Sh", u"Ш"},      {u"l\u0302", u"љ"}, {u"L\u0302", u"Љ"},
    {u"n\u0302", u"њ"}, {u"N\u0302", u"Њ"}, {u"d\u0302", u"џ"}, {u"D\u0302", u"Џ"}, {u"ź", u"з\u0301"},
    {u"Ź", u"З\u0301"}, {u"ś", u"ć"},       {u"Ś", u"Ć"},
};

/// Whether a spelling may begin here, told by its second letter or, where it is one letter, by itself.
bool mayBeSpelling(QStringView text, qsizetype at)
{
    const char16_t first = text[at].unicode();
    if (first == u'ź' || first == u'Ź' || first == u'ś' || first == u'Ś')
        return true;
    if (at + 1 == text.size())
        return false;
    const char16_t second = text[at + 1].unicode();
    return second == u'j' || second == u'h' || second == u'z' || second == u'ž' || second == u'\u0302';
}

const Spelling* spellingAt(QStringView text, qsizetype at)
{
    if (!mayBeSpelling(text, at))
        return nullptr;
    for (const Spelling& spelling : spellings) {
        if (text.mid(at).startsWith(spelling.latin))
            return &spelling;
    }
    return nullptr;
}

// Each unit becomes two at most.
constexpr qsizetype growth = 2;

QString withSpellingsJoined(QStringView text)
{
    QString result(growth * text.size(), Qt::Uninitialized);
    QChar* end = result.data();
    for (qsizetype at = 0; at < text.size();) {
        const Spelling* spelling = spellingAt(text, at);
        if (spelling) {
            end = std::copy(spelling->cyrillic.begin(), spelling->cyrillic.end(), end);
            at += static_cast<qsizetype>(spelling->latin.size());
        } else {
            *end++ = text[at++];
        }
    }
    result.truncate(end - result.constData());
    return result;
}

/// Where the first grapheme cluster of a text of two code points ends (UAX #29).
qsizetype firstBoundary(const QString& pair)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, pair);
    return finder.toNextBoundary();
}

/// Whether what stands at a place belongs to the letter ahead of it. Nothing below U+0300 does, and in the letters and
/// signs that are usual in listings nothing either; the rest is asked of the Unicode tables.
bool extendsLetter(QStringView text, qsizetype at)
{
    if (at >= text.size())
        return false;
    const char16_t unit = text[at].unicode();
    if (unit == 0x0e33) // a spacing mark, which the boundary finder parts from its letter
        return true;
    if (unit < 0x300 || (unit >= 0x370 && unit < 0x483) || (unit >= 0x48a && unit < 0x590) ||
        (unit >= 0x200e && unit < 0x20d0))
        return false;
    const qsizetype length = QChar::isHighSurrogate(unit) ? 2 : 1;
    return firstBoundary(QLatin1Char('a') + text.mid(at, length).toString()) != 1;
}

/// Whether what stands ahead of a place takes the letter there into its own cluster, as some signs of number do.
bool precedingTakesLetter(QStringView text, qsizetype at)
{
    if (at == 0)
        return false;
    const char16_t unit = text[at - 1].unicode();
    if (unit < 0x600 || (unit >= 0x2000 && unit < 0x20d0))
        return false;
    const qsizetype length = QChar::isLowSurrogate(unit) && at > 1 ? 2 : 1;
    return firstBoundary(text.mid(at - length, length).toString() + QLatin1Char('a')) > length;
}

/// Whether the letter at a place is a character by itself, without a mark that makes another character of it.
bool isWholeCharacter(QStringView text, qsizetype at)
{
    return !extendsLetter(text, at + 1) && !precedingTakesLetter(text, at);
}

bool isLetterD(QChar character)
{
    return character == QLatin1Char('d') || character == QLatin1Char('D');
}

QString withLettersReplaced(QStringView text)
{
    QString result(growth * text.size(), Qt::Uninitialized);
    QChar* end = result.data();
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar letter = text[at];
        const char16_t other = counterpart(letter.unicode());
        if ((other == 0 && letter != QLatin1Char('X')) || !isWholeCharacter(text, at)) {
            *end++ = letter;
        } else if (letter == QLatin1Char('X')) { // Latin letters, which are not converted again
            *end++ = QLatin1Char('K');
            *end++ = QLatin1Char('c');
        } else if (isLetterD(letter) && text.mid(at + 1).startsWith(QLatin1Char('z')) &&
                   isWholeCharacter(text, at + 1)) {
            *end++ = QLatin1Char('s'); // a Latin one, too
            ++at;
        } else {
            *end++ = QChar(other);
        }
    }
    result.truncate(end - result.constData());
    result.squeeze();
    return result;
}

QString cyrillic(const QString& text)
{
    return replacingLiterally(withLettersReplaced(withSpellingsJoined(text)), u"J\u030c", u"Ј");
}

bool convertsLanguage(const TVEntry::Text& language)
{
    if (!language)
        return false;
    if (language->contains(QLatin1String("mk")))
        return true;
    if (!TVEntry::cyrillicDevice())
        return false;
    return language->contains(QLatin1String("sr")) || language->contains(QLatin1String("bs")) ||
           language->contains(QLatin1String("me")) || language->contains(QLatin1String("ru"));
}

} // namespace

void TVEntry::detectAlphabet(Instant now)
{
    if (cyrillicDevice())
        return;
    const QDateTime today = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(now), DeviceSettings::timeZone());
    const QString text = DeviceSettings::locale().toString(today.date(), QLocale::LongFormat);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at].unicode();
        if (cyrillicLetters.find(unit) != std::u16string_view::npos && counterpart(unit) == 0 &&
            isWholeCharacter(text, at))
            return setCyrillicDevice(true);
    }
}

bool TVEntry::cyrillicDevice()
{
    return cyrillicFlag.load(std::memory_order_relaxed);
}

void TVEntry::setCyrillicDevice(bool cyrillic)
{
    cyrillicFlag.store(cyrillic, std::memory_order_relaxed);
}

TVEntry::Text TVEntry::latin2Cyrillic(const Text& text, const Text& language)
{
    return text && convertsLanguage(language) ? Text(cyrillic(*text)) : text;
}

std::optional<AttributedText> TVEntry::latin2Cyrillic(const std::optional<AttributedText>& text, const Text& language)
{
    return text && convertsLanguage(language) ? AttributedText(cyrillic(text->string())) : text;
}

} // namespace vidora
