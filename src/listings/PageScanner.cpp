#include "listings/PageScanner.h"

#include "content/LiteralSearch.h"

#include <QString>

#include <algorithm>
#include <limits>

namespace vidora {

namespace {

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

bool isLineEnd(QChar unit)
{
    const char16_t code = unit.unicode();
    return (code >= 0x0a && code <= 0x0d) || code == 0x85 || code == 0x2028 || code == 0x2029;
}

bool combines(QStringView text, qsizetype at)
{
    if (at >= text.size() || text[at].unicode() < 0x300)
        return false;
    if (text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
        return QChar::isMark(QChar::surrogateToUcs4(text[at], text[at + 1]));
    return text[at].isMark();
}

std::optional<PageScanner::Match> findWhole(const PageScanner& page, QStringView marker, qsizetype from, qsizetype to)
{
    while (const auto match = page.find(marker, from, to)) {
        if (!combines(page.text(), match->end))
            return match;
        from = match->at + 1;
    }
    return std::nullopt;
}

} // namespace

void PageScanner::check(qsizetype from, qsizetype to) const
{
    if (from < 0 || to > m_text.size() || from > to)
        throw RangeException("range past the end of the page");
}

std::optional<PageScanner::Match> PageScanner::find(QStringView marker, qsizetype from, qsizetype to) const
{
    check(from, to);
    if (marker.isEmpty())
        return std::nullopt;
    const qsizetype at = indexOfLiteral(m_text.first(to), marker, from);
    if (at < 0)
        return std::nullopt;
    return Match{at, at + marker.size()};
}

std::vector<PageScanner::Match> PageScanner::findAll(QStringView marker, qsizetype from, qsizetype to) const
{
    std::vector<Match> matches;
    while (const auto match = find(marker, from, to)) {
        matches.push_back(*match);
        from = match->end;
    }
    return matches;
}

std::optional<PageScanner::Match> PageScanner::findBackward(QStringView marker, qsizetype from, qsizetype to) const
{
    check(from, to);
    if (marker.isEmpty())
        return std::nullopt;
    const qsizetype at = m_text.sliced(from, to - from).lastIndexOf(marker);
    if (at < 0)
        return std::nullopt;
    return Match{from + at, from + at + marker.size()};
}

std::optional<PageScanner::Match> PageScanner::findPlain(QStringView marker, qsizetype from, qsizetype to) const
{
    if (isAscii(marker))
        return findWhole(*this, marker, from, to);
    // Every form of the marker has its plain letters in front, but for one that a mark may belong to.
    const auto accent = std::find_if(marker.begin(), marker.end(), [](QChar unit) { return unit.unicode() >= 0x80; });
    const qsizetype plain = accent - marker.begin() - 1;
    if (plain > 0) {
        const auto head = find(marker.first(plain), from, to);
        if (!head)
            return std::nullopt;
        from = head->at;
    }
    const QString text = marker.toString();
    const QString composed = text.normalized(QString::NormalizationForm_C);
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    const auto one = findWhole(*this, composed, from, to);
    const auto other = composed == decomposed ? std::nullopt : findWhole(*this, decomposed, from, to);
    if (!one || !other)
        return one ? one : other;
    return one->at < other->at ? one : other;
}

std::optional<PageScanner::Match> PageScanner::findExpression(QStringView head, qsizetype least, QStringView tail,
                                                              qsizetype from, qsizetype to) const
{
    std::optional<Match> end;
    while (const auto start = find(head, from, to)) {
        const qsizetype earliest = start->end + least;
        if (earliest > to)
            return std::nullopt;
        // The tail is sought ahead of the line end, since a page may be one line, and not again until it is passed.
        if (!end || end->at < earliest)
            end = find(tail, earliest, to);
        if (!end)
            return std::nullopt;
        const auto lineEnd = std::find_if(m_text.begin() + start->end, m_text.begin() + end->at, isLineEnd);
        if (lineEnd == m_text.begin() + end->at)
            return Match{start->at, end->end};
        // A later head on this line would meet the same missing tail.
        from = std::max<qsizetype>(lineEnd - m_text.begin(), start->at + 1);
    }
    return std::nullopt;
}

std::optional<PageScanner::Cut> PageScanner::cut(QStringView open, QStringView close, qsizetype from,
                                                 qsizetype to) const
{
    const auto opening = find(open, from, to);
    if (!opening)
        return std::nullopt;
    const auto closing = find(close, opening->end, to);
    if (!closing)
        return std::nullopt;
    return Cut{m_text.sliced(opening->end, closing->at - opening->end), *opening, *closing};
}

QStringView PageScanner::slice(qsizetype from, qsizetype to) const
{
    check(from, to);
    return m_text.sliced(from, to - from);
}

QStringView PageScanner::units(qsizetype from, qsizetype count) const
{
    if (count < 0 || count > m_text.size())
        throw RangeException("more units than the page has");
    return slice(from, from + count);
}

std::optional<PageScanner::Match> RememberedFind::find(qsizetype from)
{
    if (!m_searched || (m_match && m_match->at < from)) {
        m_match = m_page.find(m_marker, from, m_to);
        m_searched = true;
    }
    return m_match;
}

std::optional<PageScanner::Match> RememberedFind::find(qsizetype from, qsizetype to)
{
    const auto match = find(from);
    return match && match->end <= to ? match : std::nullopt;
}

std::optional<PageScanner::Match> RememberedExpression::find(qsizetype from)
{
    if (!m_searched || (m_match && m_match->at < from)) {
        m_match = m_page.findExpression(m_head, m_least, m_tail, from, m_page.size());
        m_searched = true;
    }
    return m_match;
}

std::int64_t leadingNumber(QStringView text)
{
    constexpr std::int64_t limit = std::numeric_limits<std::int64_t>::max();
    const auto blank = [](QChar unit) { return unit.isSpace(); };
    auto unit = std::find_if_not(text.begin(), text.end(), blank);
    bool negative = false;
    if (unit != text.end() && (*unit == QLatin1Char('-') || *unit == QLatin1Char('+')))
        negative = *unit++ == QLatin1Char('-');
    std::int64_t value = 0;
    for (; unit != text.end() && *unit >= QLatin1Char('0') && *unit <= QLatin1Char('9'); ++unit) {
        const int digit = unit->unicode() - u'0';
        value = value > (limit - digit) / 10 ? limit : value * 10 + digit;
    }
    return negative ? -value : value;
}

} // namespace vidora
