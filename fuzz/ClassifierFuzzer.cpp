// The classifier on any texts, compared with one that looks each word up on its own and runs group by group.
#include "content/CategoryKeywords.h"
#include "content/TVListingsCategory.h"

#include <QStringList>

#include <cstdlib>

using namespace vidora;

namespace {

struct Unit
{
    QString folded;
    qsizetype begin, end; ///< in the original text, with the marks behind it
};

std::vector<Unit> foldedUnits(const QString& text)
{
    std::vector<Unit> units;
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
        units.push_back({lower.size() == 1 ? lower : folded, i, i + 1}); // no letter becomes two
    }
    return units;
}

/// The first occurrence as positions in the original text; nothing found: -1 and -1.
std::pair<qsizetype, qsizetype> firstOccurrence(const QString& text, const QString& word)
{
    const std::vector<Unit> in = foldedUnits(text);
    const std::vector<Unit> what = foldedUnits(word);
    for (std::size_t at = 0; !what.empty() && at + what.size() <= in.size(); ++at) {
        std::size_t same = 0;
        while (same < what.size() && in[at + same].folded == what[same].folded)
            ++same;
        if (same == what.size())
            return {in[at].begin, in[at + same - 1].end};
    }
    return {-1, -1};
}

bool isAsciiLetter(QChar c)
{
    return c.unicode() < 0x80 && c.isLetter();
}

bool hasWord(const QString& text, const QString& word)
{
    const auto [begin, end] = firstOccurrence(text, word);
    if (begin < 0)
        return false;
    if (begin > 0 && text[begin - 1].isLetter())
        return false;
    if (end == text.size())
        return true;
    return text[end].unicode() < 0x80 && !isAsciiLetter(text[end]);
}

bool hasAny(const QString& text, const CategoryKeywords& row)
{
    return std::any_of(row.words.begin(), row.words.end(),
                       [&](const char16_t* word) { return hasWord(text, QString::fromUtf16(word)); });
}

void runGroups(TVListingsCategory& mask, const QString& text)
{
    for (const CategoryKeywords& row : categoryKeywords) {
        if (row.findings == Finding::sport) {
            mask |= firstOccurrence(text, QStringLiteral("sport")).first >= 0 ? category::sports : 0;
        } else if (!hasAny(text, row)) {
            continue;
        } else if (row.findings == Finding::opera) {
            mask |= hasWord(text, QStringLiteral("soap opera")) ? 0 : category::music;
        } else if (row.findings == Finding::marathon) {
            mask |= hasWord(text, QStringLiteral("filmski maraton")) ? 0 : category::sports;
        } else if (row.findings == Finding::seriesFilm) {
            mask = (mask & ~category::filmOrSeries) | category::series;
        } else {
            mask |= Finding::earlyBits(row.findings) | Finding::lateBits(row.findings);
        }
    }
}

TVListingsCategory maskWithoutResolution(const QStringList& texts)
{
    const QString& title = texts[1];
    TVListingsCategory mask = 0;
    for (const QString& text : texts)
        runGroups(mask, text);
    if (hasWord(title, QStringLiteral("kad lišće pada")))
        mask = (mask & ~0x1ff03u) | 0x2;
    if (hasWord(title, QStringLiteral("kućni ljubimci")))
        mask &= ~0x1ff01u;
    if (mask & 0x1ff09) {
        for (const QString& text : texts) {
            mask &= hasWord(text, QStringLiteral("south park")) ? ~0x8u : ~0u;
            mask &= hasWord(text, QStringLiteral("reportaža")) ? ~0x1ff01u : ~0u;
        }
    }
    if (mask & 0x1ff03)
        return mask;
    for (const QString& text : texts)
        mask |= hasWord(text, QStringLiteral("priča")) ? 0x8u : 0u;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (i != 1 && hasWord(texts[i], QStringLiteral("f.")))
            return mask | 0x1;
        if (hasWord(texts[i], QStringLiteral("s.")) || hasWord(texts[i], QStringLiteral("s,")))
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
    if (categoryMaskForTexts(std::nullopt, lines[0], lines[1], lines[2]) != resolved(maskWithoutResolution(lines)))
        std::abort();
    for (const QString& text : lines) {
        if (entryTextHasWord(text, word) != hasWord(text, word))
            std::abort();
        categoryFromText(text);
    }
    return 0;
}
