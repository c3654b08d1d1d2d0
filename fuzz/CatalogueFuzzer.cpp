// Any bytes as a property list, as a catalogue, and as an XMLTV guide to be imported.
#include "core/ChannelCatalogue.h"
#include "listings/GuideSummary.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace vidora;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto channels = channelsOfPropertyList(bytes);
    const auto kept = filteredChannels(channels, [](const QString&) { return true; });
    if (kept.size() > channels.size())
        __builtin_trap();
    for (const ChannelDictionary& channel : kept) {
        if (channel.sources().size() > 7 || !channel.iconFileName())
            __builtin_trap();
    }
    readGuideSummary(Page::fromBytes(bytes, Page::Container::None, "UTF-8"));
    return 0;
}
