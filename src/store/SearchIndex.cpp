#include "store/SearchIndex.h"

#include "platform/DispatchQueue.h"
#include "store/ByteSearch.h"

#include <algorithm>
#include <atomic>

namespace vidora {

namespace {

const std::uint8_t* bytesOf(std::string_view texts)
{
    return reinterpret_cast<const std::uint8_t*>(texts.data());
}

bool holds(std::string_view texts, const SearchPattern& pattern)
{
    const std::uint8_t* const end = bytesOf(texts) + texts.size();
    return findBytes(bytesOf(texts), end, pattern.bytes()) != end;
}

} // namespace

ShowList SearchIndex::showsContainingPattern(const MergedShows& shows, QStringView pattern, std::size_t limit,
                                             const Wanted& wanted)
{
    SearchPattern folded(pattern);
    if (folded.isEmpty())
        return {};
    const std::lock_guard lock(m_mutex);
    use(shows);
    narrowTo(std::move(folded));

    ShowList result;
    for (auto place = shows.places().begin(); place != shows.places().end() && result.size() < limit; ++place) {
        const ShowTable& table = shows.tableOf(*place);
        if (!m_lists[place->table]->found[place->row] || !wanted(table, place->row))
            continue;
        if (Show show = table.show(place->row); show && (m_pattern.isExact() || m_pattern.isIn(*show)))
            result.push_back(std::move(show));
    }
    return result;
}

/// Takes up the lists of the merged one. What is known of those that stay, stays.
void SearchIndex::use(const MergedShows& shows)
{
    std::vector<std::unique_ptr<Searched>> former = std::exchange(m_lists, {});
    const auto take = [&](const SharedShowTable& table) {
        const auto known = std::ranges::find_if(former, [&](const auto& each) { return each && each->table == table; });
        return known == former.end() ? std::make_unique<Searched>(table) : std::move(*known);
    };
    for (const SharedShowTable& table : shows.tables())
        m_lists.push_back(take(table));
}

void SearchIndex::narrowTo(SearchPattern pattern)
{
    const bool goesOn = !m_pattern.isEmpty() && pattern.contains(m_pattern);
    m_pattern = std::move(pattern);
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        QByteArray scratch;
        for (std::size_t i = next++; i < m_lists.size(); i = next++) {
            Searched& list = *m_lists[i];
            if (goesOn && !list.found.empty())
                list.searchFound(m_pattern, scratch);
            else
                list.searchAll(m_pattern, scratch);
        }
    };
    DispatchGroup helper;
    if (m_lists.size() > 1)
        helper.async(DispatchQueue::global(QualityOfService::UserInitiated), work);
    work();
    helper.wait();
}

void SearchIndex::Searched::searchAll(const SearchPattern& pattern, QByteArray& scratch)
{
    found.assign(table->end(), false);
    count = 0;
    const auto all = texts.all(scratch);
    if (!all)
        return;
    const std::vector<std::uint32_t>& ends = texts.ends();
    const std::uint8_t* const begin = bytesOf(*all);
    const std::uint8_t* const end = begin + all->size();
    auto rowEnd = ends.begin();
    for (const std::uint8_t* at = begin;; at = begin + *rowEnd) {
        at = findBytes(at, end, pattern.bytes());
        rowEnd = std::upper_bound(rowEnd, ends.end(), static_cast<std::uint32_t>(at - begin));
        if (at == end || rowEnd == ends.end())
            return;
        found[std::size_t(rowEnd - ends.begin())] = true;
        ++count;
    }
}

void SearchIndex::Searched::searchFound(const SearchPattern& pattern, QByteArray& scratch)
{
    constexpr std::size_t fewIn = 8; // one read of everything is faster than reads of more than one show in so many
    if (count > found.size() / fewIn)
        return searchAll(pattern, scratch);
    for (std::size_t row = 0; count > 0 && row < found.size(); ++row) {
        if (!found[row])
            continue;
        const auto own = texts.ofRow(static_cast<ShowTable::Row>(row), scratch);
        found[row] = own && holds(*own, pattern);
        count -= !found[row];
    }
}

void SearchIndex::clear()
{
    const std::lock_guard lock(m_mutex);
    m_lists.clear();
    m_pattern = SearchPattern();
}

} // namespace vidora
