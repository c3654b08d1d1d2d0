#include "platform/Connectivity.h"

#include <algorithm>

namespace vidora {

bool Connectivity::isConnected() const
{
    const std::lock_guard lock(m_mutex);
    return m_isConnected;
}

void Connectivity::setConnected(bool isConnected)
{
    {
        const std::lock_guard lock(m_mutex);
        m_isConnected = isConnected;
    }
    m_changed.notify_all();
}

void Connectivity::wait(Deadline deadline, const std::function<bool()>& isCancelled)
{
    // Not everyone who cancels wakes the waiting up.
    constexpr std::chrono::milliseconds longestNap{100};
    std::unique_lock lock(m_mutex);
    while (!m_isConnected && !isCancelled()) {
        const auto now = std::chrono::steady_clock::now();
        if (now >= deadline)
            return;
        m_changed.wait_until(lock, std::min(deadline, now + longestNap));
    }
}

void Connectivity::wakeUp()
{
    const std::lock_guard lock(m_mutex); // behind whoever has asked `isCancelled` and is about to wait
    m_changed.notify_all();
}

} // namespace vidora
