#pragma once

#include "core/ChannelCatalogue.h"
#include "core/TVChannels.h"
#include "platform/Application.h"
#include "platform/UserDefaults.h"
#include "store/StoreSurroundings.h"

#include <atomic>

namespace vidora {

/// What the store asks of the application, answered out of the delegate's objects. All outlive it. Any thread.
class StoreServices final : public ChannelSelection,
                            public ChannelRecords,
                            public StoreSettings,
                            public AlarmSynchronisation,
                            public ApplicationLife
{
public:
    StoreServices(TVChannels& channels, const ChannelData& channelData, const std::atomic<std::uint8_t>& showCount,
                  QString scheme, Application& application, UserDefaults& defaults);

    std::vector<ObjectId> selected() const override;
    void unload(const ObjectId& channel) override;
    void setTimeLoaded(const ObjectId& channel, Instant time) override;

    std::optional<QString> iconValue(const ObjectId& channel) const override;

    int showCount() const override { return m_showCount; }
    QString scheme() const override { return m_scheme; }

    void setSynchronized(bool isSynchronized) override;
    void syncAlarms() override;
    /// Where the two go. Nothing happens without.
    void setAlarms(AlarmSynchronisation* alarms) { m_alarms = alarms; }

    bool isInBackground() const override;
    void synchronizeSettings() override;
    Task beginBackgroundTask(std::function<void()> expired) override;
    void endBackgroundTask(Task task) override;

private:
    TVChannels& m_channels;
    const ChannelData& m_channelData;
    const std::atomic<std::uint8_t>& m_showCount;
    const QString m_scheme;
    Application& m_application;
    UserDefaults& m_defaults;
    std::atomic<AlarmSynchronisation*> m_alarms = nullptr;
};

} // namespace vidora
