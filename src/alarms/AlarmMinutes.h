#pragma once

#include <array>
#include <cstdint>

namespace vidora {

/// The lead times of an alarm that are offered to the user, in minutes. -1 is no alarm, 0 the start of the show.
constexpr std::array<int, 12> alarmMinuteSteps{-1, 0, 1, 2, 3, 5, 10, 15, 20, 30, 60, 120};

/// The offered lead time nearest to a number of minutes, the longer of two equally near. Longer ones than the longest
/// offered stay, rounded to whole minutes. Pure; any thread.
std::int64_t normalizedMinutes(double minutes);

} // namespace vidora
