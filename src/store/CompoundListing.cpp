#include "store/CompoundListing.h"

#include "store/LocalDays.h"

namespace vidora {

namespace {

class Icons
{
public:
    Icons(const StoreChannels& channels, const TVStationIcons& icons)
        : m_channels(channels)
        , m_icons(icons)
    {
    }

    bool findFor(const ObjectId& channel, CompoundListing& listing)
    {
        const auto [known, isNew] = m_known.try_emplace(channel, false);
        if (!isNew)
            return known->second;
        const std::optional<QString> name = m_channels.iconName(channel);
        const std::optional<QString> path = name ? m_icons.iconNamed(*name) : std::nullopt;
        if (path) {
            listing.icons.emplace(channel, *path);
            listing.iconNames.emplace(channel, *name);
            known->second = true;
        }
        return known->second;
    }

private:
    const StoreChannels& m_channels;
    const TVStationIcons& m_icons;
    std::unordered_map<ObjectId, bool> m_known;
};

} // namespace

CompoundListing compoundListing(const ShowList& shows, const StoreChannels& channels, const TVStationIcons& icons)
{
    CompoundListing listing;
    LocalDays days;
    Icons known(channels, icons);
    for (const Show& show : shows) {
        const std::optional<Instant> start = show->entry->dateTime();
        if (!start || !known.findFor(show->entry->channel(), listing))
            continue;
        const QString& day = days.dayKey(*start);
        ShowList& section = listing.sections[day];
        if (section.empty())
            listing.dates.append(day);
        section.push_back(show);
    }
    return listing;
}

} // namespace vidora
