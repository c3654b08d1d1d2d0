#include "listings/WallClock.h"

#include <QDateTime>

namespace vidora {

int WallClock::offsetAt(std::int64_t utcSeconds) const
{
    const auto offset = [this](std::int64_t seconds) {
        return m_zone.offsetFromUtc(QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC));
    };
    const std::int64_t day = floorDivide(utcSeconds, daySeconds);
    if (day == m_utcDay.day)
        return m_utcDay.seconds;
    const int first = offset(day * daySeconds);
    if (first != offset((day + 1) * daySeconds))
        return offset(utcSeconds);
    m_utcDay = {day, first};
    return first;
}

int WallClock::offsetAtLocal(std::int64_t localSeconds) const
{
    const std::int64_t day = floorDivide(localSeconds, daySeconds);
    if (day == m_localDay.day)
        return m_localDay.seconds;
    // No offset is as long as a day, so these two moments enclose every reading of the local day.
    const int before = offsetAt((day - 1) * daySeconds);
    const int after = offsetAt((day + 2) * daySeconds);
    if (before == after) {
        m_localDay = {day, before};
        return before;
    }
    return offsetAt(localSeconds - after) == after ? after : before;
}

} // namespace vidora
