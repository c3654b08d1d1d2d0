#pragma once

#include "platform/DispatchQueue.h"

#include <memory>

namespace vidora {

/// Queues blocks on the main queue on behalf of an object and drops those that have not run when the object goes: an
/// object that holds one may refer to itself in such blocks. Destroyed on the main thread; `async` on any thread.
class BlockOwner
{
public:
    void async(DispatchQueue::Block block) const
    {
        DispatchQueue::main().async([alive = std::weak_ptr<void>(m_alive), block = std::move(block)] {
            if (!alive.expired())
                block();
        });
    }

private:
    std::shared_ptr<void> m_alive = std::make_shared<char>();
};

} // namespace vidora
