#pragma once

#include "listings/ChannelItem.h"
#include "listings/Endpoints.h"
#include "platform/Clock.h"

#include <QStringList>

namespace vidora {

/// What every scanner of fetched pages is given. A scanner is a function of this: it stores nothing and fetches
/// nothing.
struct ScanInput
{
    const QStringList& pages; ///< texts of the pages, in the order of the URLs
    const ChannelItems& items;
    Instant now;        ///< the moment of the update
    const Clock& clock; ///< for the formats that count days from the present date instead of `now`
    const Endpoints& endpoints;
};

/// Scanners of the listing types that are read from page texts. Each adds the lists it finds to `drafts` as it goes, so
/// that what was collected ahead of an exception is there for the guard that catches it.
void scanPortNetwork(const ScanInput& input, Drafts& drafts); ///< type 0
void scanPalinsesto(const ScanInput& input, Drafts& drafts);  ///< type 2
void scanBarrandov(const ScanInput& input, Drafts& drafts);   ///< type 3
void scanDsk(const ScanInput& input, Drafts& drafts);         ///< type 4
void scanJoj(const ScanInput& input, Drafts& drafts);         ///< type 5
void scanPrimaMax(const ScanInput& input, Drafts& drafts);    ///< type 6
void scanHbo(const ScanInput& input, Drafts& drafts);         ///< type 7
void scanNova(const ScanInput& input, Drafts& drafts);        ///< type 8
void scanDolceSport(const ScanInput& input, Drafts& drafts);  ///< type 9
void scanCinestar(const ScanInput& input, Drafts& drafts);    ///< type 10
void scanRomania(const ScanInput& input, Drafts& drafts);     ///< type 11

} // namespace vidora
