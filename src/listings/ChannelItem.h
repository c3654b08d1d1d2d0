#pragma once

#include "content/ObjectId.h"
#include "content/ShowElement.h"
#include "listings/Page.h"

#include <QString>

#include <optional>
#include <unordered_map>
#include <vector>

namespace vidora {

/// A channel that a set of pages serves.
struct ChannelItem
{
    ObjectId channel;
    QString sourceId;
    std::optional<QString> language;
};

using ChannelItems = std::vector<ChannelItem>;
using Pages = std::vector<Page>;
/// What a scanner found, by channel. A channel for which nothing was found has no key.
using Drafts = std::unordered_map<ObjectId, DraftList>;

} // namespace vidora
