#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace vidora {

/// A moment in time, counted in UTC milliseconds since 1970. An absent moment is an empty std::optional.
/// Zones and calendars play no part in it; they are applied at the edges by QTimeZone.
using Instant = std::chrono::sys_time<std::chrono::milliseconds>;
using Milliseconds = std::chrono::milliseconds;
using Seconds = std::chrono::seconds;

/// Length of the fixed step by which providers' days are counted, whatever the clocks do on that day.
constexpr Seconds dayStep{86'400};

constexpr Instant instantFromUnixMilliseconds(std::int64_t milliseconds)
{
    return Instant{Milliseconds{milliseconds}};
}
constexpr std::int64_t unixMilliseconds(Instant instant)
{
    return instant.time_since_epoch().count();
}

/// Whole seconds since 1970, a fraction cut off towards zero.
constexpr std::int64_t unixSeconds(Instant instant)
{
    return unixMilliseconds(instant) / 1000;
}

/// "2026-11-22T19:00:00Z", with a fraction only where there is one.
QString isoText(Instant instant);

/// The reverse of isoText; nothing for any other text.
std::optional<Instant> instantFromIsoText(QStringView text);

} // namespace vidora
