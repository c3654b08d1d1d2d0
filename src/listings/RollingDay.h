#pragma once

#include "listings/DateFormatter.h"

#include <QString>

namespace vidora {

/// The day of the shows of one section, on pages that give a day to the section and only a time to a show. A time that
/// is not above the one before belongs to the next day, and so does all that follows in the section: the time that
/// went over midnight is not remembered, and the day never moves back.
class RollingDay
{
public:
    /// `day`: a moment on the section's day; `formatter` writes it in the provider's form and outlives the object.
    RollingDay(Instant day, const DateFormatter& formatter)
        : m_day(day)
        , m_formatter(formatter)
        , m_text(formatter.text(day))
    {
    }

    /// The day of the next show, which starts at `time`, in the formatter's form. Times are compared as texts.
    const QString& textForTime(QStringView time)
    {
        if (!m_lastTime.isEmpty() && m_lastTime >= time)
            m_text = m_formatter.text(m_day + dayStep);
        else
            m_lastTime = time;
        return m_text;
    }

private:
    Instant m_day;
    const DateFormatter& m_formatter;
    QString m_text;
    QStringView m_lastTime;
};

} // namespace vidora
