#pragma once

#include "core/ChannelFace.h"

#include <QString>

#include <vector>

namespace vidora {

/// A channel as the chooser offers it.
struct OfferedChannel
{
    ChannelFace face;
    QString language;
};

struct ChannelGroup
{
    QString title; ///< the English key of its translation
    std::vector<OfferedChannel> channels;
};

/// All channels of the catalogue in groups. The catalogue tells no regions, so there is one group, "Other".
std::vector<ChannelGroup> channelGroups(const ChannelData& channelData);

/// Orders groups by title, "Other" last, and makes at most two of them: the first and the last, which takes in all
/// between. What the first group has is taken out of the others. Channels are ordered by title in each group, one of
/// each title.
std::vector<ChannelGroup> arrangedGroups(std::vector<ChannelGroup> groups);

} // namespace vidora
