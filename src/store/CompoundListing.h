#pragma once

#include "content/ShowElement.h"
#include "store/StoreSurroundings.h"
#include "store/TVStationIcons.h"

#include <QStringList>

#include <unordered_map>

namespace vidora {

/// Shows of several channels in dated sections, with the icons of their channels.
struct CompoundListing
{
    std::unordered_map<QString, ShowList> sections;  ///< the shows of a day, in the order given
    std::unordered_map<ObjectId, QString> icons;     ///< path of the icon of each channel that occurs
    std::unordered_map<ObjectId, QString> iconNames; ///< file name of each such icon
    QStringList dates;                               ///< keys of the sections in the order of first appearance
};

/// Groups shows by the day of their start, written out in full in the device's language and zone. A channel without an
/// icon contributes nothing. Any thread.
CompoundListing compoundListing(const ShowList& shows, const StoreChannels& channels, const TVStationIcons& icons);

} // namespace vidora
