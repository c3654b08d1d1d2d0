#pragma once

#include "alarms/AlarmSurroundings.h"
#include "core/ChannelCatalogue.h"
#include "core/TVChannels.h"

#include <QHash>

namespace vidora {

/// What the alarms ask about channels, answered out of the delegate's objects, which outlive it. Any thread.
class AlarmServices final : public AlarmChannels
{
public:
    AlarmServices(TVChannels& channels, const ChannelData& channelData);

    bool anyIsSelected() const override;
    std::optional<QString> titleOfChannel(const ObjectId& channel) const override;
    std::optional<ObjectId> channelWithTitle(const QString& title) const override;
    bool isFresh(const ObjectId& channel) const override;

private:
    TVChannels& m_channels;
    const ChannelData& m_channelData;
    QHash<QString, ObjectId> m_channelsByTitle; ///< of several of one title the one of the lowest id
};

} // namespace vidora
