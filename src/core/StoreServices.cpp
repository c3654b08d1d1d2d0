#include "core/StoreServices.h"

namespace vidora {

StoreServices::StoreServices(TVChannels& channels, const ChannelData& channelData,
                             const std::atomic<std::uint8_t>& showCount, Application& application,
                             UserDefaults& defaults)
    : m_channels(channels)
    , m_channelData(channelData)
    , m_showCount(showCount)
    , m_application(application)
    , m_defaults(defaults)
{
}

std::vector<ObjectId> StoreServices::selected() const
{
    return m_channels.selected();
}

void StoreServices::unload(const ObjectId& channel)
{
    if (const auto object = m_channels.channelWithChannelId(channel))
        object->unload();
}

void StoreServices::setTimeLoaded(const ObjectId& channel, Instant time)
{
    if (const auto object = m_channels.channelWithChannelId(channel))
        object->setTimeLoaded(time);
}

std::optional<QString> StoreServices::iconName(const ObjectId& channel) const
{
    const auto found = m_channelData.find(channel);
    return found == m_channelData.end() ? std::nullopt : found->second.iconFileName();
}

bool StoreServices::isInBackground() const
{
    return m_application.applicationState() == Application::State::Background;
}

void StoreServices::synchronizeSettings()
{
    m_defaults.synchronize();
}

ApplicationLife::Task StoreServices::beginBackgroundTask(std::function<void()> expired)
{
    return m_application.beginBackgroundTask(QStringLiteral("store"), std::move(expired));
}

void StoreServices::endBackgroundTask(Task task)
{
    m_application.endBackgroundTask(task);
}

} // namespace vidora
