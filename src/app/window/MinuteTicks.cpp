#include "app/window/MinuteTicks.h"

namespace vidora {

MinuteTicks::MinuteTicks(const Clock& clock, std::function<void()> tick)
    : m_clock(clock)
    , m_tick(std::move(tick))
{
    wait();
}

void MinuteTicks::wait()
{
    constexpr std::int64_t minute = 60'000;
    const std::int64_t within = (unixMilliseconds(m_clock.now()) % minute + minute) % minute;
    m_mainBlocks.after(Milliseconds(minute - within), [this] {
        m_tick();
        wait();
    });
}

} // namespace vidora
