#pragma once

#include "listings/Endpoints.h"
#include "sample-region/RegionServer.h"
#include "support/Seams.h"

namespace vidora::test {

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
    ScriptedSleeper sleeper;
    region::RegionServer server{clock, sleeper, {}};
};

} // namespace vidora::test
