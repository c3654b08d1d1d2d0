#include "store/CompoundListing.h"

#include "store/LocalDays.h"

namespace vidora {

namespace {

// The icon's name stands behind the first slash of the catalogue's value.
std::optional<QString> iconName(const ChannelRecords& records, const ObjectId& channel)
{
    const std::optional<QString> value = records.iconValue(channel);
    const qsizetype slash = value ? value->indexOf(QLatin1Char('/')) : -1;
    return slash < 0 ? std::nullopt : std::optional(value->mid(slash + 1));
}

class Icons
{
public:
    Icons(const ChannelRecords& records, const TVStationIcons& icons)
        : m_records(records)
        , m_icons(icons)
    {
    }

    bool findFor(const ObjectId& channel, CompoundListing& listing)
    {
        const auto [known, isNew] = m_known.try_emplace(channel, false);
        if (!isNew)
            return known->second;
        const std::optional<QString> name = iconName(m_records, channel);
        const std::optional<QString> path = name ? m_icons.iconNamed(*name) : std::nullopt;
        if (path) {
            listing.icons.emplace(channel, *path);
            listing.iconNames.emplace(channel, *name);
            known->second = true;
        }
        return known->second;
    }

private:
    const ChannelRecords& m_records;
    const TVStationIcons& m_icons;
    std::unordered_map<ObjectId, bool> m_known;
};

} // namespace

CompoundListing compoundListing(const ShowList& shows, const ChannelRecords& records, const TVStationIcons& icons)
{
    CompoundListing listing;
    LocalDays days;
    Icons known(records, icons);
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
