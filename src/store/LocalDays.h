#pragma once

#include "platform/Instant.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTimeZone>

namespace vidora {

/// The days and hours of the device's zone for moments that mostly follow each other: the zone's rules are asked once
/// for each hour or day that occurs, not once for each show. For one thread.
class LocalDays
{
public:
    LocalDays();

    /// The day in full ("Sunday, 22 November 2026"), in the device's language.
    const QString& dayKey(Instant instant);
    /// Hour of the day, 0 to 23.
    int hour(Instant instant);

private:
    struct Span
    {
        Instant begin, end;
        bool holds(Instant instant) const { return instant >= begin && instant < end; }
    };

    QTimeZone m_zone;
    QLocale m_locale;
    Span m_day{};
    QString m_dayKey;
    Span m_quarter{};
    int m_hour = 0;
};

} // namespace vidora
