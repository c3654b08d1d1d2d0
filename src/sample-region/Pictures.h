#pragma once

#include "sample-region/RegionChannel.h"

#include <string>
#include <string_view>

namespace vidora::region {

/// The drawn icon of a channel: its initials on a coloured tile. An SVG document.
std::string channelIcon(const RegionChannel& channel);
/// A picture for a show, the same for the same name: a PNG file (ISO/IEC 15948) of 320 by 180 pixels.
std::string showPicture(std::string_view name);

} // namespace vidora::region
