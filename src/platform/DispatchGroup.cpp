#include "platform/DispatchQueue.h"
#include "platform/WorkerPool.h"

#include <cassert>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace vidora {

struct DispatchGroup::State
{
    void enter()
    {
        const std::lock_guard lock(mutex);
        ++count;
    }

    void leave()
    {
        std::vector<std::function<void()>> due;
        {
            const std::lock_guard lock(mutex);
            assert(count > 0);
            if (--count > 0)
                return;
            due.swap(notifications);
            becameEmpty.notify_all();
        }
        for (const auto& notification : due)
            notification();
    }

    std::mutex mutex;
    std::condition_variable becameEmpty;
    std::size_t count = 0;
    std::vector<std::function<void()>> notifications;
};

DispatchGroup::DispatchGroup()
    : m_state(std::make_shared<State>())
{
}

void DispatchGroup::async(DispatchQueue& queue, DispatchQueue::Block block)
{
    m_state->enter();
    queue.async([state = m_state, block = std::move(block)]() mutable {
        block();
        block = nullptr;
        state->leave();
    });
}

void DispatchGroup::enter()
{
    m_state->enter();
}

void DispatchGroup::leave()
{
    m_state->leave();
}

bool DispatchGroup::isEmpty() const
{
    const std::lock_guard lock(m_state->mutex);
    return m_state->count == 0;
}

void DispatchGroup::wait()
{
    const BlockingScope blocking;
    std::unique_lock lock(m_state->mutex);
    m_state->becameEmpty.wait(lock, [this] { return m_state->count == 0; });
}

void DispatchGroup::notify(DispatchQueue& queue, DispatchQueue::Block block)
{
    {
        const std::lock_guard lock(m_state->mutex);
        if (m_state->count > 0) {
            m_state->notifications.push_back(
                [put = queue.inlet(), block = std::move(block)]() mutable { put(std::move(block)); });
            return;
        }
    }
    queue.async(std::move(block));
}

} // namespace vidora
