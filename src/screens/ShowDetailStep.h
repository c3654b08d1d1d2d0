#pragma once

#include "core/ShowServices.h"

#include <vector>

namespace vidora {

/// Asks the pages behind a channel's shows for what the schedule does not tell: films, descriptions, pictures.
class ShowDetailStep
{
public:
    struct Result
    {
        ShowList shows;                ///< the given ones, those with news replaced
        std::vector<ShowImage> images; ///< one for each show; of width 0 where there is none
    };

    /// Blocks until all pages are there; never on the main thread. `services` holds for as long.
    static Result run(const ShowList& shows, const ShowServices& services);
};

} // namespace vidora
