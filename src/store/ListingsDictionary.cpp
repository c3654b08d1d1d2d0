#include "store/ListingsDictionary.h"

#include <algorithm>

namespace vidora {

SharedShowTable ListingsDictionary::list(const ObjectId& channel) const
{
    const auto found = m_lists.find(channel);
    return found == m_lists.end() ? nullptr : found->second;
}

const MergedShows& ListingsDictionary::merged() const
{
    static const MergedShows empty;
    return m_merged ? m_merged->shows() : empty;
}

void ListingsDictionary::merge(Instant now)
{
    std::vector<SharedShowTable> tables;
    tables.reserve(m_lists.size());
    for (const auto& [channel, list] : m_lists)
        tables.push_back(list);
    m_merged = std::make_shared<const MergedList>(std::move(tables), now, m_merged);
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

} // namespace vidora
