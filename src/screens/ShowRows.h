#pragma once

#include "core/ChannelFace.h"
#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The row of a show in the list of one channel: its colour by alarm, favourites and whether it is on air, its title
/// with a heart when it is popular, its details below in smaller type.
ScreenRow showRow(VidoraAppDelegate& delegate, const Show& show, bool isOnAir);

/// The row of a channel in a list of channels: icon and title.
ScreenRow channelRow(VidoraAppDelegate& delegate, const ChannelFace& channel);

/// Type in which the second line of a row is set.
TextAttributes subtitleAttributes();

} // namespace vidora
