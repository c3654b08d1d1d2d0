#include "content/RemarkPatterns.h"

namespace vidora {

namespace {

/// Line ends as regular expressions know them (UTS #18, RL1.6).
bool isLineEnd(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= 0x0a && unit <= 0x0d) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

qsizetype lineEndFrom(QStringView text, qsizetype at)
{
    while (at < text.size() && !isLineEnd(text[at]))
        ++at;
    return at;
}

/// Finds remarks one after the other. A line is looked at twice at most: once for its last closing sign, once for
/// opening ones.
class RemarkScanner
{
public:
    RemarkScanner(QStringView text, char16_t open, char16_t close, bool blankAhead)
        : m_text(text)
        , m_open(open)
        , m_close(close)
        , m_blankAhead(blankAhead)
    {
    }

    /// The next remark, with the blank ahead of it where the pattern wants one.
    TextRange next()
    {
        for (m_at = m_text.indexOf(QChar(m_open), m_at); m_at >= 0; m_at = m_text.indexOf(QChar(m_open), m_at + 1)) {
            if (!blankStandsAhead())
                continue;
            enterLine();
            if (m_lastClose < m_at)
                continue;
            const qsizetype start = m_at - (m_blankAhead ? 1 : 0);
            m_at = m_lastClose + 1;
            m_taken = m_at;
            return {start, m_at - start};
        }
        m_at = m_text.size();
        return {};
    }

private:
    bool blankStandsAhead() const { return !m_blankAhead || (m_at > m_taken && m_text[m_at - 1].isSpace()); }

    void enterLine()
    {
        if (m_at < m_lineEnd)
            return;
        m_lineEnd = lineEndFrom(m_text, m_at);
        m_lastClose = m_lineEnd - 1;
        while (m_lastClose > m_at && m_text[m_lastClose] != QChar(m_close))
            --m_lastClose;
        if (m_lastClose <= m_at)
            m_lastClose = -1;
    }

    QStringView m_text;
    char16_t m_open;
    char16_t m_close;
    bool m_blankAhead;
    qsizetype m_at = 0;
    qsizetype m_taken = 0;
    qsizetype m_lineEnd = 0;
    qsizetype m_lastClose = -1;
};

/// Finds labels one after the other.
class LabelScanner
{
public:
    explicit LabelScanner(QStringView text)
        : m_text(text)
    {
    }

    TextRange next()
    {
        while (m_at < m_text.size()) {
            if (!m_text[m_at].isSpace()) {
                ++m_at;
                continue;
            }
            const qsizetype start = m_at;
            const qsizetype wordEnd = endOfWord(start + 1);
            m_at = qMax(wordEnd, start + 1);
            const qsizetype end = endOfLabel(start + 1, wordEnd);
            if (end < 0)
                continue;
            m_at = end;
            return {start, end - start};
        }
        return {};
    }

private:
    qsizetype endOfWord(qsizetype at) const
    {
        while (at < m_text.size() && !m_text[at].isSpace())
            ++at;
        return at;
    }

    /// End of the label whose word is given; -1 where the word is none.
    qsizetype endOfLabel(qsizetype wordStart, qsizetype wordEnd) const
    {
        const bool isLabel = wordEnd - wordStart >= 2 && m_text[wordEnd - 1] == QLatin1Char(':');
        if (!isLabel || wordEnd + 1 >= m_text.size() || isLineEnd(m_text[wordEnd + 1]))
            return -1;
        return lineEndFrom(m_text, wordEnd + 1);
    }

    QStringView m_text;
    qsizetype m_at = 0;
};

template<typename Scanner>
QString without(const QString& text, Scanner scanner)
{
    TextRange range = scanner.next();
    if (range.length == 0)
        return text;
    QString result;
    result.reserve(text.size());
    qsizetype kept = 0;
    for (; range.length > 0; range = scanner.next()) {
        result += QStringView(text).mid(kept, range.start - kept);
        kept = range.start + range.length;
    }
    result += QStringView(text).mid(kept);
    return result;
}

} // namespace

TextRange firstBracketRemark(QStringView text)
{
    return RemarkScanner(text, u'[', u']', false).next();
}

QString withoutBracketRemarks(const QString& text)
{
    return without(text, RemarkScanner(text, u'[', u']', false));
}

QString withoutParenthesisRemarks(const QString& text)
{
    return without(text, RemarkScanner(text, u'(', u')', true));
}

QString withoutTrailingLabels(const QString& text)
{
    return without(text, LabelScanner(text));
}

} // namespace vidora
