#pragma once

#include "core/ChannelCatalogue.h"
#include "core/TVChannels.h"
#include "platform/Application.h"
#include "platform/UserDefaults.h"
#include "store/StoreSurroundings.h"

#include <atomic>

namespace vidora {

/// What the store asks of the application, answered out of the delegate's objects. All outlive it. Any thread.
class StoreServices final : public StoreChannels, public ApplicationLife
{
public:
    StoreServices(TVChannels& channels, const ChannelData& channelData, const std::atomic<std::uint8_t>& showCount,
                  Application& application, UserDefaults& defaults);

    std::vector<ObjectId> selected() const override;
    int showCount() const override { return m_showCount; }
    std::optional<QString> iconName(const ObjectId& channel) const override;
    void unload(const ObjectId& channel) override;
    void setTimeLoaded(const ObjectId& channel, Instant time) override;

    bool isInBackground() const override;
    void synchronizeSettings() override;
    Task beginBackgroundTask(std::function<void()> expired) override;
    void endBackgroundTask(Task task) override;

private:
    TVChannels& m_channels;
    const ChannelData& m_channelData;
    const std::atomic<std::uint8_t>& m_showCount;
    Application& m_application;
    UserDefaults& m_defaults;
};

} // namespace vidora
