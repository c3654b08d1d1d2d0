#include "alarms/AlarmMinutes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vidora {

namespace {

std::int64_t whole(double rounded)
{
    // The first double beyond the range of the result.
    constexpr double bound = 9223372036854775808.0;
    if (rounded >= bound)
        return std::numeric_limits<std::int64_t>::max();
    return static_cast<std::int64_t>(rounded);
}

} // namespace

std::int64_t normalizedMinutes(double minutes)
{
    constexpr const auto& steps = alarmMinuteSteps;
    if (std::isnan(minutes) || minutes <= steps.front())
        return steps.front();
    const double rounded = std::round(minutes);
    if (minutes >= steps.back() || std::find(steps.begin(), steps.end(), rounded) != steps.end())
        return whole(rounded);
    const auto upper = std::upper_bound(steps.begin(), steps.end(), minutes);
    const auto lower = std::prev(upper);
    return minutes - *lower < *upper - minutes ? *lower : *upper;
}

} // namespace vidora
