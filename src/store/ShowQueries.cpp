// Queries by channel and by time and category.
#include "store/LocalDays.h"
#include "store/ShowArchive.h"
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;
constexpr int firstEveningHour = 19;

/// The shows whose rows fit, in order, up to the maximum.
template<typename Fits>
ShowList collect(const MergedShows& merged, Fits fits)
{
    ShowList result;
    for (std::size_t i = 0; i < merged.rows.size() && result.size() < maximumShows; ++i) {
        if (fits(merged.rows[i]))
            result.push_back((*merged.shows)[i]);
    }
    return result;
}

ShowList eveningShows(const MergedShows& merged, Instant now)
{
    LocalDays days;
    return collect(merged, [&](const MergedShows::Row& row) {
        return row.end >= now && days.hour(row.start) >= firstEveningHour;
    });
}

ShowList currentShows(const ShowList& list, Instant now, bool (*isCurrent)(const TVEntry&, Instant))
{
    ShowList result;
    result.reserve(list.size());
    std::copy_if(list.begin(), list.end(), std::back_inserter(result),
                 [&](const Show& show) { return isCurrent(*show->entry, now); });
    return result;
}

} // namespace

void TVListings::cachedListForChannel(const ObjectId& channel, QualityOfService, ShowsBlock mainBlock)
{
    m_listingsDictionaryAccessQueue->async([this, channel, mainBlock = std::move(mainBlock)] {
        auto shows = std::make_shared<const ShowList>(
            currentShows(dictionary()->list(channel), m_surroundings.clock.now(), endsNotBefore));
        DispatchQueue::main().async([shows = std::move(shows), mainBlock] { mainBlock(shows); });
    });
}

ShowList TVListings::nextShows(const ShowList& list, std::size_t count, Instant now)
{
    ShowList result;
    for (const Show& show : list) {
        if (result.size() >= count)
            break;
        if (endsNotBefore(*show->entry, now))
            result.push_back(show);
    }
    return result;
}

void TVListings::onAirShowsWithQueue(DispatchQueue& queue, std::function<void(std::vector<ShowList>)> block)
{
    m_listingsDictionaryAccessQueue->async(
        [this, &queue, selected = m_surroundings.channels.selected(), block = std::move(block)] {
            const auto count = static_cast<std::size_t>(m_surroundings.channels.showCount());
            const Instant now = m_surroundings.clock.now();
            const auto lists = dictionary();
            std::vector<ShowList> result;
            result.reserve(selected.size());
            for (const ObjectId& channel : selected) {
                result.push_back(
                    lists->contains(channel)
                        ? nextShows(lists->list(channel), count, now)
                        : nextShows(cutThePast(ShowArchive::unarchiveObjectWithFile(listingsPath(channel)), now), count,
                                    now));
            }
            queue.async([block, result = std::move(result)] { block(result); });
        });
}

void TVListings::onAirShowsOfFilesWithQueue(DispatchQueue& queue,
                                            std::function<void(std::vector<ShowList>)> block) const
{
    std::vector<QString> paths;
    for (const ObjectId& channel : m_surroundings.channels.selected())
        paths.push_back(listingsPath(channel));
    const auto count = static_cast<std::size_t>(m_surroundings.channels.showCount());
    DispatchQueue::global(QualityOfService::UserInteractive)
        .async([&queue, paths = std::move(paths), count, now = m_surroundings.clock.now(), block = std::move(block)] {
            std::vector<ShowList> result;
            for (const QString& path : paths)
                result.push_back(ShowArchive::firstShowsOfFile(
                    path, count, [now](const TVEntry& entry) { return endsAfter(entry, now); }));
            queue.async([block, result = std::move(result)] { block(result); });
        });
}

void TVListings::showCountForSelectedChannelsForQueue(DispatchQueue& queue,
                                                      std::function<void(std::unordered_map<ObjectId, int>)> withBlock)
{
    m_listingsDictionaryAccessQueue->async(
        [this, &queue, selected = m_surroundings.channels.selected(), withBlock = std::move(withBlock)] {
            const auto count = static_cast<std::size_t>(m_surroundings.channels.showCount());
            const Instant now = m_surroundings.clock.now();
            const auto lists = dictionary();
            std::unordered_map<ObjectId, int> counts;
            for (const ObjectId& channel : selected)
                counts[channel] = static_cast<int>(nextShows(lists->list(channel), count, now).size());
            queue.async([withBlock, counts = std::move(counts)] { withBlock(counts); });
        });
}

void TVListings::compoundQuery(Query query, QualityOfService priority, CompoundBlock mainBlock)
{
    m_listingsDictionaryAccessQueue->async(
        [this, query = std::move(query), priority, mainBlock = std::move(mainBlock)]() mutable {
            auto shows = std::make_shared<const ShowList>(query(*dictionary(), m_surroundings.clock.now()));
            compoundListingsWithShows(std::move(shows), priority, std::move(mainBlock));
        });
}

void TVListings::compoundListingsWithShows(SharedShowList shows, QualityOfService priority, CompoundBlock mainBlock)
{
    const StoreChannels& channels = m_surroundings.channels;
    const TVStationIcons& icons = m_surroundings.icons;
    onMain([this, &channels, &icons, shows = std::move(shows), priority, mainBlock = std::move(mainBlock)] {
        m_compounding.async(DispatchQueue::global(priority), [&channels, &icons, shows, mainBlock] {
            auto listing = std::make_shared<const CompoundListing>(compoundListing(*shows, channels, icons));
            DispatchQueue::main().async([listing = std::move(listing), mainBlock] { mainBlock(*listing); });
        });
    });
}

void TVListings::showsWithCategory(TVListingsCategory mask, QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [mask](const ListingsDictionary& lists, Instant now) {
        const TVListingsCategory series = mask & category::series;
        return collect(lists.merged(), [=](const MergedShows::Row& row) {
            return row.classified && (row.categories & category::series) == series && (row.categories & mask) != 0 &&
                   row.end > now;
        });
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::allShowsWithCategory(TVListingsCategory category, QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [category](const ListingsDictionary& lists, Instant now) {
        if (category == category::popular)
            return currentShows(lists.list(ObjectId::popular()), now, endsAfter);
        if (category == category::evening)
            return eveningShows(lists.merged(), now);
        return collect(lists.merged(), [now](const MergedShows::Row& row) { return row.end >= now; });
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

} // namespace vidora
