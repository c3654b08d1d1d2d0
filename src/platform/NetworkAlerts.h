#pragma once

#include "platform/BlockOwner.h"
#include "platform/Clock.h"
#include "platform/URLSession.h"
#include "platform/ViewControllers.h"

#include <atomic>
#include <functional>

namespace vidora {

/// Tells the user that a provider can't be reached, at most once in 60 seconds, however many requests fail. Any thread.
class NetworkAlerts
{
public:
    using Present = std::function<void(Alert alert)>;

    /// `present` is called on the main thread. The clock outlives this object.
    NetworkAlerts(const Clock& clock, Present present);

    /// Shows the alert, in the error's own words where it has any.
    void noRemoteHostAlert(const URLError& error);
    /// How often a host was missing since the start, be it that nobody was told.
    std::uint64_t failureCount() const { return m_failures; }
    /// Counts the present moment as that of the last alert: none comes in the next 60 seconds.
    void alertedNow();

private:
    const Clock& m_clock;
    const Present m_present;
    std::atomic<std::uint64_t> m_failures = 0;
    std::atomic<std::int64_t> m_lastAlert = 0; ///< seconds since 1970
    const BlockOwner m_mainBlocks; ///< what is presented belongs to an owner that may be gone before its turn
};

} // namespace vidora
