#include "content/LatinFolding.h"

#include "content/TextFolding.h"

#include <algorithm>
#include <array>

namespace vidora {

namespace {

constexpr char16_t firstCyrillic = 0x400, endOfCyrillic = 0x460; // historic letters are not in use

struct Letter
{
    char16_t cyrillic;
    std::u16string_view latin;
};

// Without case and diacritics on both sides: й and ё are и and е, ћ is the c of ć.
constexpr Letter letters[] = {
    {u'а', u"a"}, {u'б', u"b"},  {u'в', u"v"}, {u'г', u"g"}, {u'д', u"d"}, {u'ђ', u"đ"},  {u'е', u"e"},  {u'ж', u"z"},
    {u'з', u"z"}, {u'ѕ', u"dz"}, {u'и', u"i"}, {u'ј', u"j"}, {u'к', u"k"}, {u'л', u"l"},  {u'љ', u"lj"}, {u'м', u"m"},
    {u'н', u"n"}, {u'њ', u"nj"}, {u'о', u"o"}, {u'п', u"p"}, {u'р', u"r"}, {u'с', u"s"},  {u'т', u"t"},  {u'ћ', u"c"},
    {u'у', u"u"}, {u'ф', u"f"},  {u'х', u"h"}, {u'ц', u"c"}, {u'ч', u"c"}, {u'џ', u"dz"}, {u'ш', u"s"},
};

constexpr auto latinSpellings = [] {
    std::array<std::u16string_view, endOfCyrillic - firstCyrillic> table{};
    for (const Letter& letter : letters)
        table[letter.cyrillic - firstCyrillic] = letter.latin;
    return table;
}();

bool isCyrillic(char16_t unit)
{
    return unit >= firstCyrillic && unit < endOfCyrillic;
}

} // namespace

std::u16string_view latinOfFolded(char16_t unit)
{
    return isCyrillic(unit) ? latinSpellings[unit - firstCyrillic] : std::u16string_view();
}

bool holdsCyrillic(QStringView text)
{
    return std::any_of(text.begin(), text.end(), [](QChar unit) { return isCyrillic(unit.unicode()); });
}

QString foldedInLatin(QStringView text)
{
    const FoldedText folded(text);
    if (!holdsCyrillic(folded.units()))
        return folded.units().toString();
    QString result;
    result.reserve(folded.units().size());
    for (const QChar unit : folded.units()) {
        const auto latin = latinOfFolded(unit.unicode());
        if (latin.empty())
            result += unit;
        else
            result += QStringView(latin);
    }
    return result;
}

} // namespace vidora
