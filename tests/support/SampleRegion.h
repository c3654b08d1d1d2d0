#pragma once

#include "listings/Endpoints.h"
#include "platform/Clock.h"
#include "sample-region/RegionServer.h"

#include <mutex>
#include <vector>

namespace vidora::testing {

/// Waits for nothing and remembers what it was asked for.
class RecordingSleeper final : public Sleeper
{
public:
    void sleep(Milliseconds duration) override
    {
        const std::lock_guard lock(m_mutex);
        m_slept.push_back(duration);
    }
    std::vector<Milliseconds> slept() const
    {
        const std::lock_guard lock(m_mutex);
        return m_slept;
    }

private:
    mutable std::mutex m_mutex;
    std::vector<Milliseconds> m_slept;
};

/// The sample region in this process, on free ports, at a moment that the test moves.
struct SampleRegion
{
    explicit SampleRegion(const char* moment = "2026-11-22T19:00:00Z")
        : clock(instantFromIsoText(QString::fromLatin1(moment)).value())
    {
    }
    /// The endpoints that lead to it; what it does not serve comes from `fallback`.
    Endpoints endpoints(const Endpoints& fallback = {}) const
    {
        return Endpoints::fromJson(QByteArray::fromStdString(server.endpoints()), fallback);
    }

    FixedClock clock;
    RecordingSleeper sleeper;
    region::RegionServer server{clock, sleeper, {}};
};

} // namespace vidora::testing
