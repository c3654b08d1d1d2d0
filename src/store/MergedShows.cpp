#include "store/MergedShows.h"

#include <algorithm>

namespace vidora {

MergedList::MergedList(std::vector<SharedShowTable> tables, Instant now,
                       const std::shared_ptr<const MergedList>& previous)
    : m_now(now)
    , m_previous(previous ? previous->lastOrder() : nullptr)
{
    m_shows.m_tables = std::move(tables);
}

const MergedShows& MergedList::shows() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_isMade) {
        m_shows.m_order = order();
        m_previous.reset();
        m_isMade = true;
    }
    return m_shows;
}

/// The one that was made last, here or ahead of this one.
std::shared_ptr<const MergedList::Order> MergedList::lastOrder() const
{
    const std::lock_guard lock(m_mutex);
    return m_isMade ? m_shows.m_order : m_previous;
}

std::shared_ptr<const MergedList::Order> MergedList::order() const
{
    const auto order = std::make_shared<Order>();
    std::vector<bool> isKnown(m_shows.m_tables.size());
    std::vector<std::vector<Place>> runs{stayingPlaces(isKnown)};
    for (std::uint32_t table = 0; table < m_shows.m_tables.size(); ++table) {
        order->serials.push_back(m_shows.m_tables[table]->serial());
        if (!isKnown[table])
            runs.push_back(placesOf(table));
    }
    order->places = merged(std::move(runs));
    return order;
}

std::vector<MergedShows::Place> MergedList::stayingPlaces(std::vector<bool>& isKnown) const
{
    if (!m_previous)
        return {};
    constexpr std::uint32_t gone = UINT32_MAX;
    std::vector<std::uint32_t> newIndex(m_previous->serials.size(), gone);
    for (std::uint32_t table = 0; table < m_shows.m_tables.size(); ++table) {
        const auto found = std::ranges::find(m_previous->serials, m_shows.m_tables[table]->serial());
        isKnown[table] = found != m_previous->serials.end();
        if (isKnown[table])
            newIndex[std::size_t(found - m_previous->serials.begin())] = table;
    }
    std::vector<Place> places;
    places.reserve(m_previous->places.size());
    for (const Place& place : m_previous->places) {
        const std::uint32_t table = newIndex[place.table];
        if (table != gone && m_shows.m_tables[table]->endsAfter(place.row, m_now))
            places.push_back({place.start, table, place.row});
    }
    return places;
}

std::vector<MergedShows::Place> MergedList::placesOf(std::uint32_t index) const
{
    const ShowTable& table = *m_shows.m_tables[index];
    std::vector<Place> places;
    for (ShowTable::Row row = table.first(); row < table.end(); ++row) {
        if (table.endsAfter(row, m_now))
            places.push_back({table.startOf(row), index, row});
    }
    // Almost always they are in order; a file may say anything.
    if (!std::ranges::is_sorted(places, {}, &Place::start))
        std::ranges::stable_sort(places, {}, &Place::start);
    return places;
}

/// Two and two, until one is left: runs that are in order each are merged faster than sorted.
std::vector<MergedShows::Place> MergedList::merged(std::vector<std::vector<Place>> runs)
{
    const auto isAhead = [](const Place& a, const Place& b) {
        return std::tie(a.start, a.table) < std::tie(b.start, b.table);
    };
    while (runs.size() > 1) {
        std::vector<std::vector<Place>> longer;
        for (std::size_t i = 0; i < runs.size(); i += 2) {
            if (i + 1 == runs.size() || runs[i].empty() || runs[i + 1].empty()) {
                longer.push_back(std::move(i + 1 == runs.size() || runs[i + 1].empty() ? runs[i] : runs[i + 1]));
                continue;
            }
            std::vector<Place> both(runs[i].size() + runs[i + 1].size());
            std::ranges::merge(runs[i], runs[i + 1], both.begin(), isAhead);
            longer.push_back(std::move(both));
        }
        runs = std::move(longer);
    }
    return std::move(runs.front());
}

} // namespace vidora
