#pragma once

#include <QTimeZone>

#include <cstdint>
#include <limits>

namespace vidora {

/// The clocks of one zone. Wall-clock times are counted in seconds since 1970 as if they were UTC, so that days and
/// hours are added to them by plain arithmetic. The offset of a day is looked up once. An object belongs to one thread.
class WallClock
{
public:
    explicit WallClock(QTimeZone zone)
        : m_zone(std::move(zone))
    {
    }

    /// Seconds by which the clocks are ahead of UTC at a moment, given in seconds since 1970.
    int offsetAt(std::int64_t utcSeconds) const;
    /// The same for what the clocks show. A time that they skip counts by the offset ahead of the change; one that
    /// occurs twice is the later one.
    int offsetAtLocal(std::int64_t localSeconds) const;

private:
    struct Offset
    {
        std::int64_t day = std::numeric_limits<std::int64_t>::min();
        int seconds = 0;
    };

    QTimeZone m_zone;
    mutable Offset m_utcDay, m_localDay;
};

/// Length of a day of a wall clock, in seconds.
constexpr std::int64_t daySeconds = 86'400;

/// The quotient rounded down; the divisor is above zero.
constexpr std::int64_t floorDivide(std::int64_t value, std::int64_t divisor)
{
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

} // namespace vidora
