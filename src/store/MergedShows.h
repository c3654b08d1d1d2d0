#pragma once

#include "store/ShowTable.h"

#include <mutex>
#include <vector>

namespace vidora {

/// The shows of all channels in one order, by start; those of one start in the order of their channels' ids. An order
/// over places: a show is made when it is looked at.
class MergedShows
{
public:
    /// Where a show stands.
    struct Place
    {
        Instant start;
        std::uint32_t table; ///< index into `tables`
        ShowTable::Row row;
    };

    const std::vector<Place>& places() const { return m_order->places; }
    const ShowTable& tableOf(const Place& place) const { return *m_tables[place.table]; }
    const std::vector<SharedShowTable>& tables() const { return m_tables; }
    /// Null where its list was damaged.
    Show show(const Place& place) const { return tableOf(place).show(place.row); }

    /// The first shows that fit, in order, up to `limit`. `fits(table, row)` looks at columns.
    template<typename Fits>
    ShowList collect(std::size_t limit, Fits fits) const
    {
        ShowList result;
        for (auto place = places().begin(); place != places().end() && result.size() < limit; ++place) {
            if (fits(tableOf(*place), place->row))
                add(*place, result);
        }
        return result;
    }
    /// Appends the show of a place.
    void add(const Place& place, ShowList& shows) const
    {
        if (Show each = show(place))
            shows.push_back(std::move(each));
    }

private:
    friend class MergedList;
    /// Remembers of the tables no more than which they were.
    struct Order
    {
        std::vector<std::uint64_t> serials;
        std::vector<Place> places;
    };

    std::vector<SharedShowTable> m_tables;
    std::shared_ptr<const Order> m_order = std::make_shared<const Order>();
};

/// The merged list of given tables, which are in the order of their channels' ids, at a given moment. It is made when
/// it is first asked for, out of the one ahead of it and the tables that are new: who changes many lists in a row pays
/// for no merging that nobody looks at. Any thread; who asks while it is being made waits.
class MergedList
{
public:
    MergedList(std::vector<SharedShowTable> tables, Instant now, const std::shared_ptr<const MergedList>& previous);
    /// All shows that end after the moment.
    const MergedShows& shows() const;

private:
    using Order = MergedShows::Order;
    using Place = MergedShows::Place;
    std::shared_ptr<const Order> lastOrder() const;
    std::shared_ptr<const Order> order() const;
    std::vector<Place> stayingPlaces(std::vector<bool>& isKnown) const;
    std::vector<Place> placesOf(std::uint32_t table) const;
    static std::vector<Place> merged(std::vector<std::vector<Place>> runs);

    const Instant m_now;
    mutable std::mutex m_mutex;
    mutable bool m_isMade = false;
    mutable std::shared_ptr<const Order> m_previous;
    mutable MergedShows m_shows;
};

} // namespace vidora
