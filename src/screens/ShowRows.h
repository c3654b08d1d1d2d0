#pragma once

#include "core/ChannelFace.h"
#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The row of a show in the list of one channel: its colour by alarm, favourites and whether it is on air, its title
/// with a heart when it is popular, its details below in smaller type.
ScreenRow showRow(VidoraAppDelegate& delegate, const Show& show, std::optional<double> progress);

/// How much of a broadcast is over, 0 to 1; nothing for one that is not on air, or has no length.
std::optional<double> progressOf(const TVEntry& entry, Instant now);

/// The row of a channel in a list of channels: icon and title.
ScreenRow channelRow(VidoraAppDelegate& delegate, const ChannelFace& channel);

/// When the channel's list was last loaded ("Updated ..."); empty for one that never was.
QString updatedText(VidoraAppDelegate& delegate, const ObjectId& channel);

/// Type in which the second line of a row is set.
TextAttributes subtitleAttributes();

} // namespace vidora
