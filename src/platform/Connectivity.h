#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace vidora {

/// Whether the machine has a network, for those who would rather wait for it than fail. It counts as having one until
/// somebody who knows says otherwise. Any thread.
class Connectivity
{
public:
    using Deadline = std::chrono::steady_clock::time_point;

    bool isConnected() const;
    void setConnected(bool isConnected);

    /// Blocks until there is a network, the deadline, or `isCancelled`, which is asked at least after each `wakeUp`.
    void wait(Deadline deadline, const std::function<bool()>& isCancelled);
    void wakeUp();

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isConnected = true;
};

} // namespace vidora
