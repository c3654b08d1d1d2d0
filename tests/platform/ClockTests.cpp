#include "platform/Clock.h"

#include <future>
#include <gtest/gtest.h>

namespace vidora {
namespace {

TEST(SystemSleeper, WakesAtTheEndOfTheProcess)
{
    constexpr std::chrono::hours tooLong(1);
    SystemSleeper sleeper;
    const auto sleeping = std::async(std::launch::async, [&] { sleeper.sleep(tooLong); });
    sleeper.invalidateAndWake();
    sleeping.wait();
    sleeper.sleep(tooLong);
}

} // namespace
} // namespace vidora
