#pragma once

#include "core/ChannelCatalogue.h"
#include "platform/URL.h"

namespace vidora {

/// How a channel shows itself, on the screens and in the commands alike.
struct ChannelFace
{
    ObjectId channel;
    QString title;          ///< in the reader's alphabet; "?" where the catalogue has none
    QString catalogueTitle; ///< in the alphabet of the catalogue; empty where it has none
    QString iconName;       ///< file name of the icon; empty for none
    std::optional<URL> streamURL;
};

/// The face of a channel at this moment: a change of the device's alphabet changes the titles. A channel that the
/// catalogue doesn't know has one, too.
ChannelFace channelFace(const ObjectId& channel, const ChannelData& channels);

} // namespace vidora
