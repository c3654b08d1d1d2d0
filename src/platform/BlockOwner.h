#pragma once

#include "platform/DispatchQueue.h"

#include <memory>

namespace vidora {

/// Queues blocks on the main queue on behalf of an object and drops those that have not run when the object goes: an
/// object that holds one may refer to itself in such blocks. Destroyed on the main thread; `async` on any thread.
class BlockOwner
{
public:
    /// The block for whoever will call it on the main queue: it does nothing once the object is gone.
    template<typename Block>
    auto guarded(Block block) const
    {
        return [alive = std::weak_ptr<void>(m_alive), block = std::move(block)](auto&&... arguments) {
            if (!alive.expired())
                block(std::forward<decltype(arguments)>(arguments)...);
        };
    }
    void async(DispatchQueue::Block block) const { DispatchQueue::main().async(guarded(std::move(block))); }
    void after(Milliseconds delay, DispatchQueue::Block block) const
    {
        DispatchQueue::main().after(delay, guarded(std::move(block)));
    }

private:
    std::shared_ptr<void> m_alive = std::make_shared<char>();
};

} // namespace vidora
