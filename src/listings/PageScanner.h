#pragma once

#include <QStringView>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <vector>

namespace vidora {

/// A range that does not lie within its text. The guard of a listing type catches it, or none does.
class RangeException : public std::out_of_range
{
public:
    using std::out_of_range::out_of_range;
};

/// What all hand-written scanners are made of: searches for markers in ranges of a text, and cutting out what stands
/// between two. Positions count UTF-16 units; a range is given by its start and the position behind its end. A range
/// that does not lie within the text throws RangeException; a marker that is missing gives nothing.
///
/// Holds no text of its own: the text outlives the scanner and every view that it hands out. Nothing here allocates,
/// but `findAll`, and `findPlain` of a marker outside ASCII. Searches take time in proportion to the range, so a
/// scanner that looks for one marker again and again to the end of a page must remember that it was missing
/// (RememberedFind).
class PageScanner
{
public:
    struct Match
    {
        qsizetype at;  ///< location of the match
        qsizetype end; ///< position behind it
    };
    struct Cut
    {
        QStringView text; ///< what stands between the two markers
        Match open, close;
    };

    explicit PageScanner(QStringView text)
        : m_text(text)
    {
    }

    QStringView text() const { return m_text; }
    qsizetype size() const { return m_text.size(); }

    /// Literal search, unit by unit. An empty marker is never found.
    std::optional<Match> find(QStringView marker, qsizetype from, qsizetype to) const;
    std::optional<Match> find(QStringView marker, qsizetype from) const { return find(marker, from, size()); }

    /// Every occurrence in the range, in order, none overlapping the one before.
    std::vector<Match> findAll(QStringView marker, qsizetype from, qsizetype to) const;

    /// The last occurrence in the range.
    std::optional<Match> findBackward(QStringView marker, qsizetype from, qsizetype to) const;

    /// Search by canonical equivalence (Unicode, chapter 3.7): finds the composed and the decomposed form of the
    /// marker, and never a part of a character: a match is not followed by a combining mark.
    std::optional<Match> findPlain(QStringView marker, qsizetype from, qsizetype to) const;

    /// Search for the regular expression HEAD.{LEAST,}TAIL, where "." stops at any line end. The match ends at the
    /// first TAIL possible, as with a reluctant quantifier; its location is that of a greedy one too. Time in
    /// proportion to the range, whatever stands in it.
    std::optional<Match> findExpression(QStringView head, qsizetype least, QStringView tail, qsizetype from,
                                        qsizetype to) const;

    /// Finds `open`, then `close` from behind it.
    std::optional<Cut> cut(QStringView open, QStringView close, qsizetype from, qsizetype to) const;

    /// The units from `from` up to `to`.
    QStringView slice(qsizetype from, qsizetype to) const;
    /// `count` units at `from`.
    QStringView units(qsizetype from, qsizetype count) const;

private:
    void check(qsizetype from, qsizetype to) const;

    QStringView m_text;
};

/// A literal search that is repeated from positions which only grow: each stretch of the text is walked once, however
/// often the search is made, also when the marker is missing.
class RememberedFind
{
public:
    /// Searches up to `to`, or to the end of the page. `page` and `marker` outlive the object.
    RememberedFind(const PageScanner& page, QStringView marker, std::optional<qsizetype> to = std::nullopt)
        : m_page(page)
        , m_marker(marker)
        , m_to(to.value_or(page.size()))
    {
    }
    /// `from` is never below that of the call before.
    std::optional<PageScanner::Match> find(qsizetype from);
    /// The same, but for a match that ends behind `to`, which is not above the end given at first.
    std::optional<PageScanner::Match> find(qsizetype from, qsizetype to);

private:
    const PageScanner& m_page;
    QStringView m_marker;
    qsizetype m_to;
    std::optional<PageScanner::Match> m_match;
    bool m_searched = false;
};

/// A cut whose two markers are sought again and again up to one end, from positions which only grow.
class RememberedCut
{
public:
    RememberedCut(const PageScanner& page, QStringView open, QStringView close,
                  std::optional<qsizetype> to = std::nullopt)
        : m_page(page)
        , m_open(page, open, to)
        , m_close(page, close, to)
    {
    }

    std::optional<QStringView> find(qsizetype from) { return find(from, m_page.size()); }
    std::optional<QStringView> find(qsizetype from, qsizetype to)
    {
        const auto open = m_open.find(from, to);
        if (!open)
            return std::nullopt;
        const auto close = m_close.find(open->end, to);
        return close ? std::optional(m_page.slice(open->end, close->at)) : std::nullopt;
    }

private:
    const PageScanner& m_page;
    RememberedFind m_open, m_close;
};

/// A remembered search for a regular expression HEAD.{LEAST,}TAIL, to the end of the page.
class RememberedExpression
{
public:
    /// `page`, `head` and `tail` outlive the object.
    RememberedExpression(const PageScanner& page, QStringView head, qsizetype least, QStringView tail)
        : m_page(page)
        , m_head(head)
        , m_least(least)
        , m_tail(tail)
    {
    }
    /// `from` is never below that of the call before.
    std::optional<PageScanner::Match> find(qsizetype from);

private:
    const PageScanner& m_page;
    QStringView m_head;
    qsizetype m_least;
    QStringView m_tail;
    std::optional<PageScanner::Match> m_match;
    bool m_searched = false;
};

/// The whole number at the front of a text, behind blanks and a sign; 0 where there is none. Numbers out of range stay
/// at the end of the range.
std::int64_t leadingNumber(QStringView text);

} // namespace vidora
