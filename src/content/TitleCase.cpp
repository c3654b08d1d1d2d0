#include "content/TitleCase.h"

#include <algorithm>

namespace vidora {

namespace {

char32_t codePointAt(QStringView text, qsizetype at)
{
    const QChar unit = text[at];
    if (unit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[at + 1]);
    return unit.unicode();
}

qsizetype unitsOf(char32_t codePoint)
{
    return QChar::requiresSurrogates(codePoint) ? 2 : 1;
}

bool isLetterAt(QStringView text, qsizetype at)
{
    return at < text.size() && QChar::isLetter(codePointAt(text, at));
}

bool isApostrophe(char32_t codePoint)
{
    return codePoint == U'\'' || codePoint == U'\u2019';
}

/// End of the word that begins at a place.
qsizetype endOfWord(QStringView text, qsizetype at)
{
    while (at < text.size()) {
        const char32_t codePoint = codePointAt(text, at);
        const qsizetype next = at + unitsOf(codePoint);
        const bool belongs = QChar::isLetter(codePoint) || QChar::isMark(codePoint) ||
                             (isApostrophe(codePoint) && isLetterAt(text, next));
        if (!belongs)
            break;
        at = next;
    }
    return at;
}

/// Whether the locale's small letters are those of ASCII: all have them but those with a dotless i.
bool hasPlainLetters(const QLocale& locale)
{
    return locale.language() != QLocale::Turkish && locale.language() != QLocale::Azerbaijani;
}

/// End of the marks that stand from a place on.
qsizetype endOfMarks(QStringView text, qsizetype at)
{
    while (at < text.size() && QChar::isMark(codePointAt(text, at)))
        at += unitsOf(codePointAt(text, at));
    return at;
}

QString capitalizedWord(QStringView word, const QLocale& locale)
{
    const auto isAscii = [](QChar unit) { return unit.unicode() < 0x80; };
    if (hasPlainLetters(locale) && std::all_of(word.begin(), word.end(), isAscii)) {
        QString plain = word.toString();
        for (QChar& unit : plain)
            unit = unit.toLower();
        plain[0] = plain[0].toUpper();
        return plain;
    }
    const char32_t first = codePointAt(word, 0);
    const qsizetype letter = unitsOf(first);
    const qsizetype initial = endOfMarks(word, letter); // a letter and its mark may have one small form together
    // The whole word is lowered, since a letter's small form may depend on the letters ahead of it.
    const QString small = locale.toLower(word.toString());
    QString result = QStringView(QChar::fromUcs4(QChar::toTitleCase(first))).toString();
    result += word.mid(letter, initial - letter);
    return result += QStringView(small).mid(locale.toLower(word.left(initial).toString()).size());
}

} // namespace

bool isInCapitals(QStringView text)
{
    bool capital = false;
    for (qsizetype at = 0; at < text.size();) {
        const char32_t codePoint = codePointAt(text, at);
        if (QChar::isLower(codePoint))
            return false;
        capital = capital || QChar::isUpper(codePoint) || QChar::isTitleCase(codePoint);
        at += unitsOf(codePoint);
    }
    return capital;
}

QString capitalized(QStringView text, const QLocale& locale)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        if (isLetterAt(text, at)) {
            const qsizetype end = endOfWord(text, at);
            result += capitalizedWord(text.mid(at, end - at), locale);
            at = end;
        } else {
            result += text[at++];
        }
    }
    return result;
}

} // namespace vidora
