#include "core/ChannelFace.h"

#include "content/TVEntry.h"

namespace vidora {

ChannelFace channelFace(const ObjectId& channel, const ChannelData& channels)
{
    const auto found = channels.find(channel);
    if (found == channels.end())
        return {channel, QStringLiteral("?"), {}, {}, {}};
    const ChannelDictionary& record = found->second;
    const auto title = record.title();
    const auto stream = record.stream();
    return {channel, TVEntry::latin2Cyrillic(title, record.language()).value_or(QStringLiteral("?")),
            title.value_or(QString()), record.iconFileName().value_or(QString()),
            stream ? URL::fromText(*stream) : std::nullopt};
}

} // namespace vidora
