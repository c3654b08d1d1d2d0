#include "platform/Clock.h"

#include "platform/WorkerPool.h"

#include <QRandomGenerator>

namespace vidora {

Instant SystemClock::now() const
{
    return std::chrono::time_point_cast<Milliseconds>(std::chrono::system_clock::now());
}

FixedClock::FixedClock(Instant instant)
    : m_milliseconds(unixMilliseconds(instant))
{
}

Instant FixedClock::now() const
{
    return instantFromUnixMilliseconds(m_milliseconds);
}

void FixedClock::set(Instant instant)
{
    m_milliseconds = unixMilliseconds(instant);
}

void FixedClock::advance(Milliseconds step)
{
    m_milliseconds += step.count();
}

std::uint32_t SystemRandom::uniform(std::uint32_t bound)
{
    return QRandomGenerator::global()->bounded(bound);
}

void SystemSleeper::sleep(Milliseconds duration)
{
    const BlockingScope blocking;
    std::unique_lock lock(m_mutex);
    m_over.wait_for(lock, duration, [this] { return m_isOver; });
}

void SystemSleeper::invalidateAndWake()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_over.notify_all();
}

} // namespace vidora
