#pragma once

#include "platform/BlockOwner.h"
#include "platform/DispatchQueue.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vidora {

/// Counts the requests that are under way, for the sign on the screen that something is being fetched. Any thread.
class NetworkActivity
{
public:
    /// `setNetworkActivityIndicatorVisible` is called on the main thread when the first request begins and when the
    /// last one ends.
    explicit NetworkActivity(std::function<void(bool visible)> setNetworkActivityIndicatorVisible);

    /// Both return at once. A stop without its start does nothing.
    void startNetworkActivity();
    void stopNetworkActivity();

private:
    void setVisible(bool visible) const;

    const std::function<void(bool)> m_indicator;
    std::uint32_t m_count = 0;     ///< touched on the queue alone
    const BlockOwner m_mainBlocks; ///< what is presented belongs to an owner that may be gone before its turn
    const std::shared_ptr<DispatchQueue> m_queue; ///< last, so that its blocks end before the rest goes
};

} // namespace vidora
