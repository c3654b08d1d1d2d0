#pragma once

#include "core/VidoraAppDelegate.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// The row of a show in the list of one channel: its colour by alarm, favourites and whether it is on air, its title
/// with a heart when it is popular, its details below in smaller type.
ScreenRow showRow(VidoraAppDelegate& delegate, const Show& show, bool isOnAir);

/// The title of a channel in the reader's alphabet; "?" where the catalogue has none.
QString channelTitle(const ChannelDictionary& channel);

/// The address of a channel's stream; nothing without one.
std::optional<URL> streamURL(const ChannelDictionary& channel);

/// Type in which the second line of a row is set.
TextAttributes subtitleAttributes();

} // namespace vidora
