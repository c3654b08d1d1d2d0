#include "store/ListingsDictionary.h"

#include <algorithm>

namespace vidora {

namespace {

struct Position
{
    Instant start;
    const Show* show;
};

qint32 sizeOf(const TVEntry::Text& text)
{
    return text ? static_cast<qint32>(text->size()) : -1;
}

std::vector<Position> currentShows(const ListingsDictionary::Lists& lists, Instant now)
{
    std::size_t count = 0;
    for (const auto& [key, list] : lists)
        count += list->size();
    std::vector<Position> positions;
    positions.reserve(count);
    for (const auto& [key, list] : lists) {
        if (key == ObjectId::popular() || key == ObjectId::all())
            continue;
        for (const Show& show : *list) {
            if (endsAfter(*show->entry, now))
                positions.push_back({show->entry->dateTime().value_or(Instant::min()), &show});
        }
    }
    return positions;
}

} // namespace

const ShowList& ListingsDictionary::list(const ObjectId& key) const
{
    static const ShowList empty;
    const auto found = m_lists.find(key);
    return found == m_lists.end() ? empty : *found->second;
}

const MergedShows& ListingsDictionary::merged() const
{
    static const MergedShows empty;
    return m_merged ? *m_merged : empty;
}

std::shared_ptr<const MergedShows> ListingsDictionary::merge(Instant now) const
{
    std::vector<Position> positions = currentShows(m_lists, now);
    std::stable_sort(positions.begin(), positions.end(),
                     [](const Position& a, const Position& b) { return a.start < b.start; });
    auto shows = std::make_shared<ShowList>();
    auto merged = std::make_shared<MergedShows>();
    shows->reserve(positions.size());
    merged->rows.reserve(positions.size());
    for (const Position& position : positions) {
        const ShowElement& show = **position.show;
        merged->rows.push_back({position.start, show.entry->endDateTime().value_or(Instant::min()),
                                show.categories.value_or(0), show.categories.has_value(), sizeOf(show.entry->title()),
                                sizeOf(show.entry->identificator())});
        shows->push_back(*position.show);
    }
    merged->shows = std::move(shows);
    return merged;
}

void ListingsDictionary::setMerged(std::shared_ptr<const MergedShows> merged)
{
    if (merged->shows->empty())
        remove(ObjectId::all());
    else
        set(ObjectId::all(), merged->shows);
    m_merged = std::move(merged);
}

ShowList cutThePast(ShowList list, Instant now)
{
    const auto current =
        std::find_if(list.begin(), list.end(), [now](const Show& show) { return endsAfter(*show->entry, now); });
    list.erase(list.begin(), current);
    return list;
}

bool endsAfter(const TVEntry& entry, Instant now)
{
    const std::optional<Instant> end = entry.endDateTime();
    return end && *end > now;
}

bool endsNotBefore(const TVEntry& entry, Instant now)
{
    const std::optional<Instant> end = entry.endDateTime();
    return !end || *end >= now;
}

} // namespace vidora
