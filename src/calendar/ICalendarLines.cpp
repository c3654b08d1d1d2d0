#include "calendar/ICalendarLines.h"

#include <algorithm>

namespace vidora {

namespace {

constexpr std::size_t maximalDepth = 16;
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF", 3);

qsizetype endOfPhysicalLine(const QByteArray& document, qsizetype from)
{
    const qsizetype mark = document.indexOf('\n', from);
    return mark < 0 ? document.size() : mark + 1;
}

QByteArray nameOf(QByteArrayView line)
{
    const auto* end = std::find_if(line.begin(), line.end(), [](char c) { return c == ':' || c == ';'; });
    return line.first(end - line.begin()).trimmed().toByteArray().toUpper();
}

std::vector<ICalendarLine> split(const QByteArray& document)
{
    std::vector<ICalendarLine> lines;
    for (qsizetype begin = document.startsWith(byteOrderMark) ? byteOrderMark.size() : 0; begin < document.size();) {
        const qsizetype first = endOfPhysicalLine(document, begin);
        qsizetype end = first;
        while (end < document.size() && (document.at(end) == ' ' || document.at(end) == '\t'))
            end = endOfPhysicalLine(document, end);
        lines.push_back({begin, end, nameOf(QByteArrayView(document).sliced(begin, first - begin))});
        begin = end;
    }
    return lines;
}

/// Follows the nesting of components line by line.
class Nesting
{
public:
    explicit Nesting(ICalendarLines& result)
        : m_result(result)
    {
    }

    bool take(std::size_t index, const QByteArray& document)
    {
        const ICalendarLine& line = m_result.lines[index];
        if (line.name == "BEGIN")
            return open(index, component(line, document));
        if (line.name == "END")
            return close(index, component(line, document));
        if (insideFirstEvent() && m_open.size() == 2)
            m_result.properties.push_back(index);
        return true;
    }
    bool complete() const { return m_open.empty() && m_result.eventCount > 0; }

private:
    static QByteArray component(const ICalendarLine& line, const QByteArray& document)
    {
        const QByteArray text = line.unfolded(document);
        return text.mid(text.indexOf(':') + 1).trimmed().toUpper();
    }
    bool insideFirstEvent() const { return m_result.eventCount == 1 && m_open.size() >= 2 && m_open[1] == "VEVENT"; }

    bool open(std::size_t index, QByteArray name)
    {
        m_open.push_back(std::move(name));
        if (m_open.size() == 1)
            return m_open[0] == "VCALENDAR";
        if (m_open.size() == 2 && m_open[1] == "VEVENT" && ++m_result.eventCount == 1)
            m_result.event.begin = index;
        if (m_open.size() == 3 && m_open[2] == "VALARM" && insideFirstEvent())
            m_result.alarms.push_back({index, index});
        return m_open.size() <= maximalDepth;
    }
    bool close(std::size_t index, const QByteArray& name)
    {
        if (m_open.empty() || m_open.back() != name)
            return false;
        if (insideFirstEvent() && m_open.size() == 2)
            m_result.event.end = index + 1;
        if (insideFirstEvent() && m_open.size() == 3 && name == "VALARM")
            m_result.alarms.back().end = index + 1;
        m_open.pop_back();
        return true;
    }

    ICalendarLines& m_result;
    std::vector<QByteArray> m_open;
};

} // namespace

QByteArray ICalendarLine::unfolded(const QByteArray& document) const
{
    QByteArray text;
    for (qsizetype from = begin; from < end;) {
        const qsizetype next = std::min(endOfPhysicalLine(document, from), end);
        qsizetype last = next;
        if (last > from && document.at(last - 1) == '\n')
            --last;
        if (last > from && document.at(last - 1) == '\r')
            --last;
        const qsizetype start = from == begin ? from : std::min(from + 1, last);
        text.append(document.constData() + start, last - start);
        from = next;
    }
    return text;
}

std::optional<ICalendarLines> ICalendarLines::of(const QByteArray& document)
{
    ICalendarLines result;
    result.lines = split(document);
    Nesting nesting(result);
    for (std::size_t index = 0; index < result.lines.size(); ++index) {
        if (!nesting.take(index, document))
            return std::nullopt;
    }
    return nesting.complete() ? std::optional(std::move(result)) : std::nullopt;
}

} // namespace vidora
