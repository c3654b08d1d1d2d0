#include "content/ListingText.h"
#include "content/LiteralSearch.h"
#include "content/RemarkPatterns.h"

#include <QStringList>

#include <initializer_list>

namespace vidora {

namespace {

using Description = TVEntrySupplementalData;

struct Marker
{
    qsizetype start = -1;
    qsizetype end = -1;
    bool found() const { return start >= 0; }
};

/// The first of the markers that occurs at all, wherever it stands.
Marker firstPresent(QStringView text, std::initializer_list<QStringView> markers)
{
    for (const QStringView marker : markers) {
        const qsizetype start = indexOfLiteral(text, marker);
        if (start >= 0)
            return {start, start + marker.size()};
    }
    return {};
}

bool isCarriageReturn(QChar character)
{
    return character == QLatin1Char('\r');
}

bool isLineBreak(QChar character)
{
    return character == QLatin1Char('\n') || isCarriageReturn(character);
}

QString withoutCarriageReturnsAround(const QString& text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && isCarriageReturn(text[start]))
        ++start;
    while (end > start && isCarriageReturn(text[end - 1]))
        --end;
    return text.mid(start, end - start);
}

QString withoutCreditLines(const QString& text, const QString& host)
{
    if (!text.contains(QLatin1Char('(')))
        return text;
    const QString croatian = QStringLiteral("(više na http://") + host + QLatin1Char(')');
    const QString english = QStringLiteral("(more at http://") + host + QLatin1Char(')');
    return replacingLiterally(replacingLiterally(text, croatian, {}), english, {});
}

/// What stands behind a label, up to the end of its line.
QString lineBehind(const QString& text, const Marker& label)
{
    const qsizetype lineFeed = text.indexOf(QLatin1Char('\n'), label.end);
    return text.mid(label.end, lineFeed < 0 ? -1 : lineFeed - label.end);
}

/// The text ahead of a place; the line ends there belong to what follows.
QString textAhead(const QString& text, qsizetype cut)
{
    while (cut > 0 && isLineBreak(text[cut - 1]))
        --cut;
    return text.left(cut);
}

/// Credits with a label each, one a line.
void takeLabelledCredits(Description& extra, const QString& text, const Marker& cast)
{
    if (!extra.roles)
        extra.roles = lineBehind(text, cast);
    extra.roles = withoutTrailingLabels(extra.roles->string());

    qsizetype cut = cast.start;
    const Marker director = firstPresent(text, {u"Scenarist i redatelj: ", u"Redatelj: ", u"Režija: "});
    if (director.found()) {
        cut = qMin(cut, director.start);
        extra.directedBy = withoutTrailingLabels(lineBehind(text, director));
    }
    extra.description = textAhead(text, cut);
}

constexpr QStringView directedByLabel = u"Regia - ";

qsizetype startOfCreditRun(const QString& text)
{
    qsizetype cut = -1;
    if (indexOfLiteral(text, directedByLabel) < 0)
        return cut;
    for (const QStringView opening :
         {QStringView(u"\nRegia - "), QStringView(u", Regia - "), QStringView(u" Regia - ")}) {
        const qsizetype start = indexOfLiteral(text, opening);
        if (start >= 0 && (cut < 0 || start < cut))
            cut = start;
    }
    return cut;
}

qsizetype endOfItem(const QString& text, qsizetype at)
{
    while (at < text.size() && text[at] != QLatin1Char(',') && text[at] != QLatin1Char('\n'))
        ++at;
    return at;
}

/// A run of names parted by commas or line ends, in which only directors have a label.
void takeCreditRun(Description& extra, const QString& text)
{
    const qsizetype cut = startOfCreditRun(text);
    if (cut < 0) {
        extra.description = text;
        return;
    }
    QStringList directors;
    QStringList actors;
    qsizetype end = 0;
    for (qsizetype at = indexOfLiteral(text, directedByLabel);; at = end + 1) {
        end = endOfItem(text, at);
        if (at < end && text[at] == QLatin1Char(' '))
            ++at;
        const QString item = text.mid(at, end - at);
        const qsizetype label = indexOfLiteral(item, directedByLabel);
        if (label >= 0)
            directors += item.mid(label + directedByLabel.size());
        else
            actors += item;
        if (end == text.size())
            break;
    }
    extra.description = text.left(cut);
    const QString directedBy = directors.join(QLatin1String(", "));
    if (!directedBy.isEmpty())
        extra.directedBy = directedBy;
    const QString roles = actors.join(QLatin1String(", "));
    if (!roles.isEmpty())
        extra.roles = roles;
}

/// A line end stays where it ends a paragraph or a sentence; lines that were merely wrapped are joined.
QString inParagraphs(QString text)
{
    if (text.contains(QLatin1Char('\n'))) {
        text = replacingLiterally(text, u"\n\n", u"\r");
        text = replacingLiterally(text, u".\n", u".\r");
    }
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    if (text.startsWith(QLatin1String("; ")))
        text.remove(0, 2);
    if (!text.isEmpty() && !text.endsWith(QLatin1Char('.')))
        text += QLatin1Char('.');
    return text;
}

} // namespace

void descriptionCleanUp(TVEntrySupplementalData& extra, const QString& creditsHost)
{
    if (!extra.description || !extra.description->isPlain() || extra.description->isEmpty())
        return;
    const QString text = withoutCreditLines(withoutCarriageReturnsAround(extra.description->string()), creditsHost);
    const Marker cast = firstPresent(text, {u"Uloge: ", u"Cu: "});
    if (cast.found())
        takeLabelledCredits(extra, text, cast);
    else
        takeCreditRun(extra, text);
    extra.description = inParagraphs(extra.description->string());
}

} // namespace vidora
