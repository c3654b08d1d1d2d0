#pragma once

#include "platform/Instant.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace vidora {

/// Calls something once a delay is over: what `DispatchQueue::after` stands on. One timer serves the whole process; a
/// test puts its own in place. May be used on any thread.
class Timer
{
public:
    using Call = std::function<void()>;

    virtual ~Timer() = default;
    /// The call comes on a thread of the timer's choice and must be short. A delay below zero counts as none.
    virtual void schedule(Milliseconds delay, Call call) = 0;

    static std::shared_ptr<Timer> current();
    /// Puts a timer in place and hands back the one before. What that one still holds stays with it.
    static std::shared_ptr<Timer> replace(std::shared_ptr<Timer> timer);
};

/// A timer whose time passes only by `advance`. Puts itself in place for as long as it lives.
class ManualTimer
{
public:
    ManualTimer();
    ~ManualTimer();
    ManualTimer(const ManualTimer&) = delete;
    ManualTimer& operator=(const ManualTimer&) = delete;

    /// Makes the calls that fall due, in the order of their times, on the calling thread.
    void advance(Milliseconds step);
    std::size_t pending() const;

private:
    class Schedule;
    std::shared_ptr<Schedule> m_schedule;
    std::shared_ptr<Timer> m_before;
};

} // namespace vidora
