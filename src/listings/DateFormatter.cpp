#include "listings/DateFormatter.h"

#include <algorithm>
#include <limits>

namespace vidora {

namespace {

struct Fields
{
    int year = 1970, month = 1, day = 1, hour = 0, minute = 0, second = 0;
    std::optional<int> offset;
};

bool isField(QChar letter)
{
    return QStringView(u"yMdHmsZ").contains(letter);
}

bool isNumber(QChar letter)
{
    return letter != QLatin1Char('Z') && isField(letter);
}

bool isDigit(QChar unit)
{
    return unit >= QLatin1Char('0') && unit <= QLatin1Char('9');
}

/// One piece of a form: `length` equal field letters, or one literal character.
struct Piece
{
    QChar letter;
    qsizetype length = 1;
    bool field = false;
};

/// Walks a form piece by piece.
class Pieces
{
public:
    explicit Pieces(QStringView format)
        : m_format(format)
    {
    }

    std::optional<Piece> next()
    {
        while (m_at < m_format.size() && m_format[m_at] == QLatin1Char('\'')) {
            m_quoted = !m_quoted;
            ++m_at;
        }
        if (m_at == m_format.size())
            return std::nullopt;
        Piece piece{m_format[m_at], 1, !m_quoted && isField(m_format[m_at])};
        if (piece.field) {
            while (m_at + piece.length < m_format.size() && m_format[m_at + piece.length] == piece.letter)
                ++piece.length;
        }
        m_at += piece.length;
        return piece;
    }

    bool numberFollows() const { return !m_quoted && m_at < m_format.size() && isNumber(m_format[m_at]); }

private:
    QStringView m_format;
    qsizetype m_at = 0;
    bool m_quoted = false;
};

/// Reads a text from its front.
class Reader
{
public:
    explicit Reader(QStringView text)
        : m_text(text)
    {
    }

    bool atEnd() const { return m_at == m_text.size(); }

    bool literal(QChar unit)
    {
        const bool fits = !atEnd() && m_text[m_at] == unit;
        m_at += fits ? 1 : 0;
        return fits;
    }

    void skipBlanks()
    {
        while (!atEnd() && m_text[m_at].isSpace())
            ++m_at;
    }

    /// A number of `least` to `most` digits.
    std::optional<int> number(qsizetype least, qsizetype most)
    {
        constexpr int limit = 1'000'000;
        int value = 0;
        const qsizetype start = m_at;
        while (!atEnd() && m_at - start < most && isDigit(m_text[m_at])) {
            value = std::min(value * 10 + m_text[m_at].digitValue(), limit);
            ++m_at;
        }
        if (m_at - start < least)
            return std::nullopt;
        return value;
    }

    /// "Z", or a sign with +HH, +HHmm, +HHmmss, +HH:mm or +HH:mm:ss; in seconds.
    std::optional<int> offset()
    {
        if (literal(QLatin1Char('Z')) || literal(QLatin1Char('z')))
            return 0;
        const bool west = literal(QLatin1Char('-'));
        if (!west && !literal(QLatin1Char('+')))
            return std::nullopt;
        const auto hours = number(2, 2);
        if (!hours || *hours > 23)
            return std::nullopt;
        int seconds = *hours * 3600;
        const bool colons = !atEnd() && m_text[m_at] == QLatin1Char(':');
        for (const int unit : {60, 1}) {
            if (atEnd() || (colons ? !literal(QLatin1Char(':')) : !isDigit(m_text[m_at])))
                break;
            const auto value = number(2, 2);
            if (!value || *value > 59)
                return std::nullopt;
            seconds += *value * unit;
        }
        return west ? -seconds : seconds;
    }

private:
    QStringView m_text;
    qsizetype m_at = 0;
};

bool assign(Fields& fields, QChar letter, int value)
{
    const auto put = [value](int& field, int low, int high) {
        field = value;
        return value >= low && value <= high;
    };
    switch (letter.unicode()) {
    case u'y':
        return put(fields.year, 1, 30'000);
    case u'M':
        return put(fields.month, 1, 12);
    case u'd':
        return put(fields.day, 1, 31);
    case u'H':
        return put(fields.hour, 0, 23);
    case u'm':
        return put(fields.minute, 0, 59);
    default:
        return put(fields.second, 0, 59);
    }
}

std::optional<Fields> read(QStringView format, QStringView text)
{
    Fields fields;
    Pieces pieces(format);
    Reader reader(text);
    bool abuts = false;
    while (const auto piece = pieces.next()) {
        if (!piece->field) {
            if (!reader.literal(piece->letter))
                return std::nullopt;
            abuts = false;
        } else if (piece->letter == QLatin1Char('Z')) {
            fields.offset = reader.offset();
            if (!fields.offset)
                return std::nullopt;
            abuts = false;
        } else {
            const bool ahead = pieces.numberFollows();
            const bool bounded = abuts || ahead;
            if (!bounded)
                reader.skipBlanks();
            const auto value = reader.number(ahead ? piece->length : 1,
                                             bounded ? piece->length : std::numeric_limits<qsizetype>::max());
            if (!value || !assign(fields, piece->letter, *value))
                return std::nullopt;
            abuts = true;
        }
    }
    if (!reader.atEnd())
        return std::nullopt;
    return fields;
}

std::optional<std::int64_t> secondsAsUtc(const Fields& fields)
{
    const std::chrono::year_month_day date{std::chrono::year(fields.year),
                                           std::chrono::month(static_cast<unsigned>(fields.month)),
                                           std::chrono::day(static_cast<unsigned>(fields.day))};
    if (!date.ok())
        return std::nullopt;
    const auto days = std::chrono::sys_days(date).time_since_epoch().count();
    return days * daySeconds + fields.hour * 3600 + fields.minute * 60 + fields.second;
}

Fields fieldsOf(std::int64_t localSeconds)
{
    const std::int64_t day = floorDivide(localSeconds, daySeconds);
    const int rest = static_cast<int>(localSeconds - day * daySeconds);
    const std::chrono::year_month_day date{std::chrono::sys_days(std::chrono::days(day))};
    Fields fields;
    fields.year = int(date.year());
    fields.month = static_cast<int>(unsigned(date.month()));
    fields.day = static_cast<int>(unsigned(date.day()));
    fields.hour = rest / 3600;
    fields.minute = rest / 60 % 60;
    fields.second = rest % 60;
    return fields;
}

void appendNumber(QString& text, int value, qsizetype length)
{
    const QString digits = QString::number(value);
    for (qsizetype i = digits.size(); i < length; ++i)
        text += QLatin1Char('0');
    text += digits;
}

void appendOffset(QString& text, int seconds)
{
    if (seconds == 0) {
        text += QLatin1Char('Z');
        return;
    }
    const int size = std::abs(seconds);
    text += QLatin1Char(seconds < 0 ? '-' : '+');
    appendNumber(text, size / 3600, 2);
    text += QLatin1Char(':');
    appendNumber(text, size / 60 % 60, 2);
    if (size % 60 != 0) {
        text += QLatin1Char(':');
        appendNumber(text, size % 60, 2);
    }
}

int value(const Fields& fields, QChar letter)
{
    switch (letter.unicode()) {
    case u'y':
        return fields.year;
    case u'M':
        return fields.month;
    case u'd':
        return fields.day;
    case u'H':
        return fields.hour;
    case u'm':
        return fields.minute;
    default:
        return fields.second;
    }
}

} // namespace

DateFormatter::DateFormatter(QString format, QTimeZone zone)
    : m_format(std::move(format))
    , m_wallClock(std::move(zone))
{
}

std::optional<Instant> DateFormatter::date(QStringView text) const
{
    const auto fields = read(m_format, text);
    if (!fields)
        return std::nullopt;
    const auto local = secondsAsUtc(*fields);
    if (!local)
        return std::nullopt;
    return Instant(Seconds(*local - (fields->offset ? *fields->offset : m_wallClock.offsetAtLocal(*local))));
}

QString DateFormatter::text(Instant instant) const
{
    const std::int64_t utc = floorDivide(unixMilliseconds(instant), 1000);
    const int offset = m_wallClock.offsetAt(utc);
    const Fields fields = fieldsOf(utc + offset);
    QString text;
    Pieces pieces(m_format);
    while (const auto piece = pieces.next()) {
        if (!piece->field)
            text += piece->letter;
        else if (piece->letter == QLatin1Char('Z'))
            appendOffset(text, offset);
        else
            appendNumber(text, value(fields, piece->letter), piece->length);
    }
    return text;
}

} // namespace vidora
