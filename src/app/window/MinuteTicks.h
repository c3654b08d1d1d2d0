#pragma once

#include "platform/BlockOwner.h"
#include "platform/Clock.h"

#include <functional>

namespace vidora {

/// Calls something at the start of each minute of the clock, which is when times on the screen change. Main thread.
class MinuteTicks
{
public:
    /// The clock outlives this object.
    MinuteTicks(const Clock& clock, std::function<void()> tick);

private:
    void wait();

    const Clock& m_clock;
    const std::function<void()> m_tick;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
