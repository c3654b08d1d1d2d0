#include "platform/Timer.h"

#include "platform/ThreadStarter.h"

#include <algorithm>
#include <condition_variable>
#include <map>

namespace vidora {

namespace {

/// Calls by their due times, on one thread that starts with the first of them and stays.
class SystemTimer final : public Timer
{
public:
    void schedule(Milliseconds delay, Call call) override
    {
        const std::lock_guard lock(m_mutex);
        if (!m_started)
            startThread([this] { run(); });
        m_started = true;
        m_calls.emplace(Steady::now() + std::max(delay, Milliseconds{0}), std::move(call));
        m_changed.notify_one();
    }

private:
    using Steady = std::chrono::steady_clock;

    [[noreturn]] void run()
    {
        std::unique_lock lock(m_mutex);
        for (;;) {
            if (m_calls.empty())
                m_changed.wait(lock);
            else if (const auto due = m_calls.begin()->first; due > Steady::now())
                m_changed.wait_until(lock, due);
            else
                makeFirst(lock);
        }
    }

    void makeFirst(std::unique_lock<std::mutex>& lock)
    {
        auto first = m_calls.extract(m_calls.begin());
        lock.unlock();
        first.mapped()();
        first = {};
        lock.lock();
    }

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::multimap<Steady::time_point, Call> m_calls;
    bool m_started = false;
};

struct Present
{
    std::mutex mutex;
    std::shared_ptr<Timer> timer = std::make_shared<SystemTimer>();
};

// Never destroyed: the timer's thread runs until the process ends.
Present& present()
{
    static Present& only = *new Present;
    return only;
}

} // namespace

std::shared_ptr<Timer> Timer::current()
{
    const std::lock_guard lock(present().mutex);
    return present().timer;
}

std::shared_ptr<Timer> Timer::replace(std::shared_ptr<Timer> timer)
{
    const std::lock_guard lock(present().mutex);
    return std::exchange(present().timer, std::move(timer));
}

class ManualTimer::Schedule final : public Timer
{
public:
    void schedule(Milliseconds delay, Call call) override
    {
        const std::lock_guard lock(m_mutex);
        m_calls.emplace(m_now + std::max(delay, Milliseconds{0}), std::move(call));
    }

    Call nextUntil(Milliseconds end)
    {
        const std::lock_guard lock(m_mutex);
        if (m_calls.empty() || m_calls.begin()->first > end) {
            m_now = end;
            return {};
        }
        auto first = m_calls.extract(m_calls.begin());
        m_now = std::max(m_now, first.key());
        return std::move(first.mapped());
    }

    Milliseconds now() const
    {
        const std::lock_guard lock(m_mutex);
        return m_now;
    }

    std::size_t pending() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls.size();
    }

private:
    mutable std::mutex m_mutex;
    std::multimap<Milliseconds, Call> m_calls;
    Milliseconds m_now{0};
};

ManualTimer::ManualTimer()
    : m_schedule(std::make_shared<Schedule>())
    , m_before(Timer::replace(m_schedule))
{
}

ManualTimer::~ManualTimer()
{
    Timer::replace(std::move(m_before));
}

void ManualTimer::advance(Milliseconds step)
{
    const Milliseconds end = m_schedule->now() + step;
    while (const Timer::Call call = m_schedule->nextUntil(end))
        call();
}

std::size_t ManualTimer::pending() const
{
    return m_schedule->pending();
}

} // namespace vidora
