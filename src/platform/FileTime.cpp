#include "platform/FileTime.h"

#include <ctime>

namespace vidora {

std::int64_t nanosecondsOf(const timespec& time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

std::int64_t presentFileTime()
{
    timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return nanosecondsOf(now);
}

} // namespace vidora
