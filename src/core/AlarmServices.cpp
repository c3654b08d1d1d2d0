#include "core/AlarmServices.h"

namespace vidora {

AlarmServices::AlarmServices(TVChannels& channels, const ChannelData& channelData)
    : m_channels(channels)
    , m_channelData(channelData)
{
    for (const auto& [id, channel] : m_channelData) {
        const auto title = channel.title();
        if (!title)
            continue;
        const auto known = m_channelsByTitle.constFind(*title);
        if (known == m_channelsByTitle.cend() || id < *known)
            m_channelsByTitle.insert(*title, id);
    }
}

bool AlarmServices::anyIsSelected() const
{
    return !m_channels.selected().empty();
}

std::optional<QString> AlarmServices::titleOfChannel(const ObjectId& channel) const
{
    const auto found = m_channelData.find(channel);
    return found == m_channelData.end() ? std::nullopt : found->second.title();
}

std::optional<ObjectId> AlarmServices::channelWithTitle(const QString& title) const
{
    const auto found = m_channelsByTitle.constFind(title);
    return found == m_channelsByTitle.cend() ? std::nullopt : std::optional(*found);
}

bool AlarmServices::isFresh(const ObjectId& channel) const
{
    const auto object = m_channels.channelWithChannelId(channel);
    return object && !object->loading() && !object->reloadNeeded();
}

} // namespace vidora
