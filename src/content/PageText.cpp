// Clean-up of texts that were cut out of a provider's page.
#include "content/ListingText.h"
#include "content/LiteralSearch.h"

namespace vidora {

namespace {

// The classes of the C locale, whatever the locale of the process: a no-break space or a dash is neither here.
bool isSpaceOfC(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == u' ' || (unit >= 0x09 && unit <= 0x0d);
}

bool isPunctuationOfC(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit > u' ' && unit < u'0') || (unit > u'9' && unit < u'A') || (unit > u'Z' && unit < u'a') ||
           (unit > u'z' && unit < 0x7f);
}

QString withSingleBlanks(QStringView text)
{
    return replacingLiterally(text.toString(), u"  ", u" ");
}

int digitValue(QChar character, int base)
{
    const char16_t unit = character.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    const char16_t small = unit | 0x20;
    return base == 16 && small >= u'a' && small <= u'f' ? small - u'a' + 10 : -1;
}

/// Replaces the references that begin with the opening and hold digits of the base up to a ";". A number is one unit
/// of text: of a larger one the low 16 bits count.
QString withNumericReferences(const QString& text, QStringView opening, int base)
{
    QString result;
    qsizetype kept = 0;
    for (qsizetype found = indexOfLiteral(text, opening); found >= 0; found = indexOfLiteral(text, opening, found)) {
        const qsizetype firstDigit = found + opening.size();
        quint64 number = 0;
        qsizetype at = firstDigit;
        for (; at < text.size() && digitValue(text[at], base) >= 0; ++at) {
            const auto digit = static_cast<quint64>(digitValue(text[at], base));
            number = qMin<quint64>(number * static_cast<quint64>(base) + digit, 0xffffffff);
        }
        found = at;
        if (at == firstDigit || at == text.size() || text[at] != QLatin1Char(';'))
            continue;
        result += QStringView(text).mid(kept, firstDigit - opening.size() - kept);
        result += QChar(static_cast<char16_t>(number));
        kept = ++found;
    }
    return kept == 0 ? text : result + QStringView(text).mid(kept);
}

QString withReferencesReplaced(QString text)
{
    text = replacingLiterally(text, u"&amp;", u"&");
    text = replacingLiterally(text, u"&lt;", u"<");
    text = replacingLiterally(text, u"&gt;", u">");
    text = replacingLiterally(text, u"&apos;", u"'");
    text = replacingLiterally(text, u"&quot", u"\"");
    return withNumericReferences(withNumericReferences(text, u"&#x", 16), u"&#", 10);
}

} // namespace

std::optional<QString> trimmedListingText(QStringView text)
{
    while (!text.isEmpty() && (isSpaceOfC(text.front()) || isPunctuationOfC(text.front())))
        text = text.mid(1);
    while (!text.isEmpty() && isSpaceOfC(text.back()))
        text.chop(1);
    if (text.isEmpty())
        return std::nullopt;
    return withSingleBlanks(text);
}

QString htmlCleanUp(const QString& text)
{
    constexpr QStringView open = u"<![CDATA[";
    constexpr QStringView close = u"]]>";
    const qsizetype start = indexOfLiteral(text, open);
    if (start < 0)
        return withReferencesReplaced(text);
    const qsizetype characterData = start + open.size();
    const qsizetype end = text.indexOf(close, characterData);
    const QString ahead = withReferencesReplaced(text.left(start));
    if (end < 0)
        return ahead + QStringView(text).mid(characterData);
    return ahead + QStringView(text).mid(characterData, end - characterData) +
           withReferencesReplaced(text.mid(end + close.size()));
}

QString whitespaceCleanUp(const QString& text)
{
    return withSingleBlanks(QStringView(text).trimmed());
}

} // namespace vidora
