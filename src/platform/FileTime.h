#pragma once

#include <cstdint>

struct timespec;

namespace vidora {

/// A time of a file in nanoseconds since 1970, as stat(2) tells it.
std::int64_t nanosecondsOf(const timespec& time);

/// Now, by the clock that file systems stamp files with: not the one that tests move. For telling whether a file may
/// have changed again within the step of its stamp.
std::int64_t presentFileTime();

} // namespace vidora
