#pragma once

#include "platform/DispatchQueue.h"

#include <memory>
#include <vector>

namespace vidora {

/// Suspensions of a queue that end by themselves: each with its token, and all of them when the application does, so
/// that nothing waits for a block of the main queue that will never run. Main thread.
class LoadPauses
{
public:
    using Token = std::shared_ptr<void>;

    /// The queue runs again when all tokens given out for it are gone.
    Token pause(std::shared_ptr<DispatchQueue> queue)
    {
        auto pause = std::make_shared<Pause>(std::move(queue));
        std::erase_if(m_pauses, [](const std::weak_ptr<Pause>& known) { return known.expired(); });
        m_pauses.push_back(pause);
        return pause;
    }

    void endAll()
    {
        for (const std::weak_ptr<Pause>& known : m_pauses) {
            if (const auto pause = known.lock())
                pause->end();
        }
    }

private:
    struct Pause
    {
        explicit Pause(std::shared_ptr<DispatchQueue> suspended)
            : queue(std::move(suspended))
        {
            queue->suspend();
        }
        ~Pause() { end(); }
        void end()
        {
            if (queue)
                queue->resume();
            queue.reset();
        }
        std::shared_ptr<DispatchQueue> queue;
    };

    std::vector<std::weak_ptr<Pause>> m_pauses;
};

} // namespace vidora
