#include "screens/ChannelGroups.h"

#include <algorithm>
#include <unordered_set>

namespace vidora {

namespace {

const QString other = QString::fromLatin1(QT_TRANSLATE_NOOP("vidora", "Other"));

bool titleLess(const QString& a, const QString& b)
{
    return a.compare(b, Qt::CaseInsensitive) < 0;
}

bool groupLess(const ChannelGroup& a, const ChannelGroup& b)
{
    if (a.title == other || b.title == other)
        return a.title != other;
    return titleLess(a.title, b.title);
}

void removeTitlesOf(const ChannelGroup& first, ChannelGroup& later)
{
    std::unordered_set<QString> titles;
    for (const OfferedChannel& channel : first.channels)
        titles.insert(channel.face.catalogueTitle);
    std::erase_if(later.channels,
                  [&](const OfferedChannel& channel) { return titles.contains(channel.face.catalogueTitle); });
}

void sortByTitle(std::vector<OfferedChannel>& channels)
{
    std::stable_sort(channels.begin(), channels.end(), [](const auto& a, const auto& b) {
        return titleLess(a.face.catalogueTitle, b.face.catalogueTitle);
    });
    const auto sameTitle = [](const auto& a, const auto& b) { return a.face.catalogueTitle == b.face.catalogueTitle; };
    channels.erase(std::unique(channels.begin(), channels.end(), sameTitle), channels.end());
}

} // namespace

std::vector<ChannelGroup> arrangedGroups(std::vector<ChannelGroup> groups)
{
    std::stable_sort(groups.begin(), groups.end(), groupLess);
    for (std::size_t i = 1; i < groups.size(); ++i)
        removeTitlesOf(groups.front(), groups[i]);
    while (groups.size() > 2) {
        auto& last = groups.back().channels;
        last.insert(last.end(), groups[1].channels.begin(), groups[1].channels.end());
        groups.erase(groups.begin() + 1);
    }
    for (ChannelGroup& group : groups)
        sortByTitle(group.channels);
    return groups;
}

std::vector<ChannelGroup> channelGroups(const ChannelData& channelData)
{
    ChannelGroup all{other, {}};
    for (const auto& [id, channel] : channelData)
        all.channels.push_back({channelFace(id, channelData), channel.language().value_or(QString())});
    // Of channels with one title the same one is to stay at every launch.
    std::sort(all.channels.begin(), all.channels.end(),
              [](const auto& a, const auto& b) { return a.face.channel < b.face.channel; });
    return all.channels.empty() ? std::vector<ChannelGroup>() : arrangedGroups({std::move(all)});
}

} // namespace vidora
