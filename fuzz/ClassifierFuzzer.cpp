// The classifier on any texts, compared with one that looks each word up on its own and runs group by group.
#include "content/CategoryKeywords.h"
#include "content/TVListingsCategory.h"

#include <QStringList>

#include <cstdlib>
#include <map>

using namespace vidora;

namespace {

struct Unit
{
    QChar folded;
    qsizetype begin, end; ///< in the original text, with the marks behind it
};

struct Text
{
    Text(const QString& given);
    QString original;
    std::vector<Unit> units;
};

Text::Text(const QString& text)
    : original(text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        QString folded = text[i].isSurrogate() || (text[i] >= QChar(0xac00) && text[i] <= QChar(0xd7a3))
                             ? QString(text[i])
                             : QString(text[i]).normalized(QString::NormalizationForm_D);
        folded.removeIf([](QChar c) { return QChar::combiningClass(c.unicode()) != 0; });
        if (folded.isEmpty()) {
            if (!units.empty())
                units.back().end = i + 1;
            continue;
        }
        if (folded.size() > 1)
            folded = text[i];
        const QString lower = folded == QString(QChar(0x1e9e)) ? QString(QChar(0xdf)) : folded.toCaseFolded();
        units.push_back({lower.size() == 1 ? lower[0] : folded[0], i, i + 1}); // no letter becomes two
    }
}

const Text& keyword(const char16_t* word)
{
    static std::map<const char16_t*, Text> known;
    return known.try_emplace(word, QString::fromUtf16(word)).first->second;
}

/// The first occurrence as positions in the original text; nothing found: -1 and -1.
std::pair<qsizetype, qsizetype> firstOccurrence(const Text& text, const Text& word)
{
    const auto same = [](const Unit& a, const Unit& b) { return a.folded == b.folded; };
    const auto at = std::search(text.units.begin(), text.units.end(), word.units.begin(), word.units.end(), same);
    if (word.units.empty() || at == text.units.end())
        return {-1, -1};
    return {at->begin, at[std::ptrdiff_t(word.units.size()) - 1].end};
}

bool isAsciiLetter(QChar c)
{
    return c.unicode() < 0x80 && c.isLetter();
}

bool hasWord(const Text& given, const Text& word)
{
    const QString& text = given.original;
    const auto [begin, end] = firstOccurrence(given, word);
    if (begin < 0)
        return false;
    if (begin > 0 && text[begin - 1].isLetter())
        return false;
    if (end == text.size())
        return true;
    return text[end].unicode() < 0x80 && !isAsciiLetter(text[end]);
}

bool hasAny(const Text& text, const CategoryKeywords& row)
{
    return std::any_of(row.words.begin(), row.words.end(),
                       [&](const char16_t* word) { return hasWord(text, keyword(word)); });
}

void runGroups(TVListingsCategory& mask, const Text& text)
{
    for (const CategoryKeywords& row : categoryKeywords) {
        if (row.findings == Finding::sport) {
            mask |= firstOccurrence(text, keyword(u"sport")).first >= 0 ? category::sports : 0;
        } else if (!hasAny(text, row)) {
            continue;
        } else if (row.findings == Finding::opera) {
            mask |= hasWord(text, keyword(u"soap opera")) ? 0 : category::music;
        } else if (row.findings == Finding::marathon) {
            mask |= hasWord(text, keyword(u"filmski maraton")) ? 0 : category::sports;
        } else if (row.findings == Finding::seriesFilm) {
            mask = (mask & ~category::filmOrSeries) | category::series;
        } else {
            mask |= Finding::earlyBits(row.findings) | Finding::lateBits(row.findings);
        }
    }
}

TVListingsCategory maskWithoutResolution(const std::vector<Text>& texts)
{
    const Text& title = texts[1];
    TVListingsCategory mask = 0;
    for (const Text& text : texts)
        runGroups(mask, text);
    if (hasWord(title, keyword(u"kad lišće pada")))
        mask = (mask & ~0x1ff03u) | 0x2;
    if (hasWord(title, keyword(u"kućni ljubimci")))
        mask &= ~0x1ff01u;
    if (mask & 0x1ff09) {
        for (const Text& text : texts) {
            mask &= hasWord(text, keyword(u"south park")) ? ~0x8u : ~0u;
            mask &= hasWord(text, keyword(u"reportaža")) ? ~0x1ff01u : ~0u;
        }
    }
    if (mask & 0x1ff03)
        return mask;
    for (const Text& text : texts)
        mask |= hasWord(text, keyword(u"priča")) ? 0x8u : 0u;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i != 1 && hasWord(texts[i], keyword(u"f.")))
            return mask | 0x1;
        if (hasWord(texts[i], keyword(u"s.")) || hasWord(texts[i], keyword(u"s,")))
            return mask | 0x2;
    }
    return mask;
}

TVListingsCategory resolved(TVListingsCategory mask)
{
    const auto both = [&](TVListingsCategory a, TVListingsCategory b, TVListingsCategory cleared) {
        if ((mask & a) != 0 && (mask & b) != 0)
            mask &= ~cleared;
    };
    both(0x2, 0x400, 0x400);
    both(0x2, 0x1000, 0x1000);
    both(0x2, 0x100, 0x100);
    both(0x80, 0x2, 0x2);
    both(0x80, 0x1ff01, 0x80);
    both(0x2, 0x20, 0x20);
    both(0x20, 0x1ff01, 0x20);
    both(0x2, 0x1ff01, 0x1ff01);
    both(0x4, 0x1ff01, 0x1ff01);
    both(0x8, 0x1ff01, 0x1ff01);
    both(0x8, 0x2, 0x2);
    both(0x8, 0x80, 0x80);
    both(0x4, 0x2, 0x2);
    both(0x4000, 0x8000, 0x8000);
    both(0x80, 0x20, 0x20);
    return mask;
}

} // namespace

/// The input is UTF-8 in lines: details, title, description, and a word to be looked for in the three.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t longEnough = 4096; // the reference takes time by the square
    const QByteArrayView bytes(data, qsizetype(std::min(size, longEnough)));
    QStringList lines = QString::fromUtf8(bytes).split(QLatin1Char('\n'));
    lines.resize(4);
    const QString word = lines.takeLast();
    if (categoryMaskForTexts(std::nullopt, lines[0], lines[1], lines[2]) !=
        resolved(maskWithoutResolution({lines[0], lines[1], lines[2]})))
        std::abort();
    for (const QString& text : lines) {
        if (entryTextHasWord(text, word) != hasWord(text, word))
            std::abort();
        categoryFromText(text);
    }
    return 0;
}
