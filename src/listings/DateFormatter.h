#pragma once

#include "listings/WallClock.h"
#include "platform/Instant.h"

#include <QString>
#include <QTimeZone>

#include <optional>

namespace vidora {

/// Turns the wall-clock times of a provider's pages into moments and back, in one fixed form and one zone. Forms are
/// those of Unicode Technical Standard #35: "yyyy", "M" and "MM", "d" and "dd", "HH", "mm", "ss", "ZZZZZ" (an offset
/// as in ISO 8601, which then replaces the zone), text in apostrophes, and any other character as itself.
///
/// Reading is strict: the whole text must fit, every field must be in its range and the day must exist. A number may
/// have fewer or more digits than its field, or blanks in front, unless it abuts another number: then it has exactly
/// as many digits as its field, or fewer where it is the last of them. The year is taken as written. A time that the
/// clocks skip counts by the offset ahead of the change; one that occurs twice is the later one.
///
/// Digits are read by hand, and the offset of a day is looked up once. An object belongs to one thread.
class DateFormatter
{
public:
    /// `format` is one of the forms above; `zone` the zone of the wall clock.
    DateFormatter(QString format, QTimeZone zone);

    std::optional<Instant> date(QStringView text) const;
    QString text(Instant instant) const;

private:
    QString m_format;
    WallClock m_wallClock;
};

} // namespace vidora
