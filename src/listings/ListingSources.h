#pragma once

#include "listings/Endpoints.h"
#include "platform/Clock.h"
#include "platform/URL.h"

#include <QString>
#include <QTimeZone>

#include <cstdint>
#include <optional>
#include <vector>

namespace vidora {

/// The documents of one source, in the order of fetching, without doubles. Channels whose sets are equal share one
/// fetch and one parse.
using URLSet = std::vector<URL>;

/// True for a plain decimal number of 32 bits, as it would be printed.
bool sourceIdUsedByPortNetwork(const QString& sourceId);

/// Listing type of a source id, 0 to 11; 1 for whatever is not recognised.
std::uint32_t listingsTypeForSourceId(const QString& sourceId, const Endpoints& endpoints);

/// Addresses of a source's documents at `now`, earliest day first; nothing when the id does not fit its family.
/// `language` is not used by any family. `random` chooses among the hosts of the families that have two.
std::optional<URLSet> urlsForSourceId(const QString& sourceId, Instant now, const std::optional<QString>& language,
                                      const Endpoints& endpoints, Random& random);

/// Zone in which a provider counts its days, by the last two characters of `server`; nothing for an unknown one.
/// Throws RangeException for a text of less than two characters.
std::optional<QTimeZone> timeZoneForServer(QStringView server);

} // namespace vidora
