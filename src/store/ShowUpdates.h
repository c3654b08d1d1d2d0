#pragma once

#include "store/ShowTable.h"

namespace vidora {

// Changes of a published list: each makes a new one, which shares the shows that stay, and leaves the old one to its
// readers. Null when there is nothing to change, or the list is damaged.

/// The list with supplemental data, and pictures if there are any, at the show whose entry is this very object; none
/// when the list doesn't hold it any more. An element without categories gets the mask 0; pictures that it has stay
/// where none are given.
SharedShowTable listWithDescription(const ShowTable& list, const std::shared_ptr<const TVEntry>& entry,
                                    const std::shared_ptr<const TVEntrySupplementalData>& extra,
                                    const std::optional<Pictures>& pictures);

/// The list with the film link, and the pictures if given, at every show of this title and category mask.
SharedShowTable listWithIMDB(const ShowTable& list, const QString& identificator, std::uint32_t category,
                             const std::optional<URL>& url, const std::optional<Pictures>& pictures);

/// Whether two lists hold the same broadcasts with the same parts, in the same order.
bool isEqualToShowList(const ShowList& a, const ShowList& b);

} // namespace vidora
