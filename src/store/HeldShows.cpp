#include "store/HeldShows.h"

#include <algorithm>

namespace vidora {

Show HeldShows::show(Row row) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_parts.find(row);
    return found == m_parts.end() ? nullptr : found->second.show.lock();
}

std::shared_ptr<const TVEntry> HeldShows::entry(Row row) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_parts.find(row);
    return found == m_parts.end() ? nullptr : found->second.entry.lock();
}

Show HeldShows::keep(Row row, ShowElement read)
{
    const std::lock_guard lock(m_mutex);
    if (const auto found = m_parts.find(row); found != m_parts.end()) {
        if (Show show = found->second.show.lock())
            return show;
        if (auto entry = found->second.entry.lock())
            read.entry = std::move(entry);
        if (auto extra = found->second.extra.lock())
            read.extra = std::move(extra);
    }
    // Not in one piece of memory with its counters, which live on for as long as it is remembered.
    const Show show(new ShowElement(std::move(read)));
    put(row, show);
    return show;
}

void HeldShows::remember(Row row, const Show& show)
{
    const std::lock_guard lock(m_mutex);
    put(row, show);
}

void HeldShows::put(Row row, const Show& show)
{
    if (m_parts.size() >= m_looksAgainAt)
        drop();
    m_parts[row] = {show, show->entry, show->extra};
}

void HeldShows::takeOver(const HeldShows& other, Row first)
{
    const std::scoped_lock lock(m_mutex, other.m_mutex);
    for (const auto& [row, parts] : other.m_parts) {
        if (row >= first && !parts.isReleased())
            m_parts.insert_or_assign(row - first, parts);
    }
}

void HeldShows::forgetReleased()
{
    const std::lock_guard lock(m_mutex);
    drop();
}

void HeldShows::drop()
{
    std::erase_if(m_parts, [](const auto& each) { return each.second.isReleased(); });
    m_looksAgainAt = std::max<std::size_t>(64, 2 * m_parts.size());
}

} // namespace vidora
