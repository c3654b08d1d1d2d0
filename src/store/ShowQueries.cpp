// Queries by channel and by time and category.
#include "store/LocalDays.h"
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;
constexpr int firstEveningHour = 19;

ShowList eveningShows(const MergedShows& merged, Instant now)
{
    LocalDays days;
    return merged.collect(maximumShows, [&](const ShowTable& table, ShowTable::Row row) {
        return table.endsNotBefore(row, now) && days.hour(table.startOf(row)) >= firstEveningHour;
    });
}

ShowList currentShows(const ShowList& list, Instant now)
{
    ShowList result;
    std::copy_if(list.begin(), list.end(), std::back_inserter(result),
                 [&](const Show& show) { return endsAfter(*show->entry, now); });
    return result;
}

/// The shows of a list's rows that fit, in order.
template<typename Fits>
ShowList showsOf(const ShowTable& list, Fits fits, std::size_t limit = SIZE_MAX)
{
    ShowList result;
    for (ShowTable::Row row = list.first(); row < list.end() && result.size() < limit; ++row) {
        if (!fits(row))
            continue;
        if (Show show = list.show(row))
            result.push_back(std::move(show));
    }
    return result;
}

bool runsWithin(const ShowTable& list, ShowTable::Row row, Instant from, Instant until)
{
    return list.startOf(row) < until && (list.startOf(row) >= from || list.endsAfter(row, from));
}

} // namespace

void TVListings::cachedListForChannel(const ObjectId& channel, QualityOfService, ShowsBlock mainBlock)
{
    read([channel, mainBlock = std::move(mainBlock)](const ListingsDictionary& lists, Instant now) {
        const SharedShowTable list = lists.list(channel);
        auto shows = std::make_shared<const ShowList>(
            list ? showsOf(*list, [&](ShowTable::Row row) { return list->endsNotBefore(row, now); }) : ShowList());
        DispatchQueue::main().async([shows = std::move(shows), mainBlock] { mainBlock(shows); });
    });
}

ShowList TVListings::nextShows(const ShowTable& list, std::size_t count, Instant now)
{
    return showsOf(
        list, [&](ShowTable::Row row) { return list.endsNotBefore(row, now); }, count);
}

void TVListings::onAirShowsWithQueue(DispatchQueue& queue, std::function<void(std::vector<ShowList>)> block)
{
    read([this, &queue, selected = m_surroundings.channels.selected(),
          block = std::move(block)](const ListingsDictionary& lists, Instant now) {
        const auto count = static_cast<std::size_t>(m_surroundings.channels.showCount());
        std::vector<ShowList> result;
        result.reserve(selected.size());
        for (const ObjectId& channel : selected) {
            SharedShowTable list = lists.list(channel);
            if (!list)
                list = ShowTable::openFile(listingsPath(channel), now);
            result.push_back(list ? nextShows(*list, count, now) : ShowList());
        }
        queue.async([block, result = std::move(result)] { block(result); });
    });
}

void TVListings::showsOfChannels(std::vector<ObjectId> channels, Instant from, Instant until, DispatchQueue& queue,
                                 std::function<void(std::vector<ShowList>)> block)
{
    read([&queue, channels = std::move(channels), from, until,
          block = std::move(block)](const ListingsDictionary& lists, Instant) {
        std::vector<ShowList> result;
        for (const ObjectId& channel : channels) {
            const SharedShowTable list = lists.list(channel);
            const auto fits = [&](ShowTable::Row row) { return runsWithin(*list, row, from, until); };
            result.push_back(list ? showsOf(*list, fits) : ShowList());
        }
        queue.async([block, result = std::move(result)] { block(result); });
    });
}

void TVListings::showCountForSelectedChannelsForQueue(DispatchQueue& queue,
                                                      std::function<void(std::unordered_map<ObjectId, int>)> withBlock)
{
    read([this, &queue, selected = m_surroundings.channels.selected(),
          withBlock = std::move(withBlock)](const ListingsDictionary& lists, Instant now) {
        const int most = m_surroundings.channels.showCount();
        std::unordered_map<ObjectId, int> counts;
        for (const ObjectId& channel : selected) {
            int& count = counts[channel];
            const SharedShowTable list = lists.list(channel);
            for (ShowTable::Row row = list ? list->first() : 0; list && row < list->end() && count < most; ++row)
                count += list->endsNotBefore(row, now);
        }
        queue.async([withBlock, counts = std::move(counts)] { withBlock(counts); });
    });
}

void TVListings::compoundQuery(Query query, QualityOfService priority, CompoundBlock mainBlock)
{
    read([this, query = std::move(query), priority, mainBlock = std::move(mainBlock)](const ListingsDictionary& lists,
                                                                                      Instant now) {
        compoundListingsWithShows(std::make_shared<const ShowList>(query(lists, now)), priority, mainBlock);
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
        return lists.merged().collect(maximumShows, [=](const ShowTable& table, ShowTable::Row row) {
            const TVListingsCategory bits = table.categoriesOf(row).value_or(0);
            return (bits & mask) != 0 && (bits & category::series) == series && table.endsAfter(row, now);
        });
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::allShowsWithCategory(TVListingsCategory category, QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [category](const ListingsDictionary& lists, Instant now) {
        if (category == category::popular)
            return lists.popular() ? currentShows(*lists.popular(), now) : ShowList();
        if (category == category::evening)
            return eveningShows(lists.merged(), now);
        return lists.merged().collect(
            maximumShows, [now](const ShowTable& table, ShowTable::Row row) { return table.endsNotBefore(row, now); });
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

} // namespace vidora
