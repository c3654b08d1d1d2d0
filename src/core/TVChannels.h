#pragma once

#include "core/ChannelCatalogue.h"
#include "core/TVChannel.h"
#include "platform/BlockOwner.h"
#include "platform/DispatchQueue.h"
#include "platform/KeyValueStore.h"

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace vidora {

using ChannelIds = std::vector<ObjectId>;

/// What the user has selected, in the user's order: kept in memory, in a file, and in the key-value store for the
/// user's other devices. Any thread, guarded by the concurrent queue "selected"; not to be called from a block of that
/// queue.
class TVChannels
{
public:
    /// `keyValueStore`, `channelData` and what `aging` refers to outlive this object.
    TVChannels(QString documentsFolder, ChannelAging aging, const ChannelData& channelData,
               KeyValueStore& keyValueStore);
    ~TVChannels();

    /// The selected ids. Empty when nothing can be read, and then the file is tried again at the next call. The first
    /// successful read makes the channel objects through a block on the main queue, without waiting for it.
    ChannelIds selected();
    /// Replaces the selection. Channels that stay keep their objects. The file and the key-value store follow soon
    /// after; with an equal selection in place nothing happens.
    void setSelected(const ChannelIds& selection);
    /// The object of a selected channel that the catalogue knows; nothing for any other.
    std::shared_ptr<TVChannel> channelWithChannelId(const ObjectId& id) const;
    /// Returns once all that was written so far has reached the file and the key-value store.
    void waitForWrites() const;

    static constexpr QLatin1String keyInStore{"SelectedChannels"};

private:
    std::optional<ChannelIds> readFile() const;
    void write(const ChannelIds& selection) const;
    void rebuild(ChannelIds selection);
    std::shared_ptr<TVChannel> make(const ObjectId& id, const ChannelDictionary& channel) const;

    const QString m_path;
    const ChannelAging m_aging;
    const ChannelData& m_channelData;
    KeyValueStore& m_keyValueStore;
    std::shared_ptr<DispatchQueue> m_queue;
    std::optional<ChannelIds> m_selection;
    std::unordered_map<ObjectId, std::shared_ptr<TVChannel>> m_channels;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
