#include "store/SearchIndex.h"

#include <algorithm>

namespace vidora {

SearchIndex::SearchIndex() = default;
SearchIndex::~SearchIndex() = default;

ShowList SearchIndex::showsContainingPattern(const std::shared_ptr<const ShowList>& shows, QStringView pattern,
                                             std::size_t limit, const Wanted& wanted)
{
    SearchPattern folded(pattern);
    if (folded.isEmpty())
        return {};
    const std::lock_guard lock(m_mutex);
    use(shows);
    narrowTo(std::move(folded));

    ShowList result;
    const auto take = [&](std::size_t index) {
        const Show& show = (*shows)[index];
        if (wanted(*show))
            result.push_back(show);
    };
    for (std::size_t i = 0; i < m_found.size() && result.size() < limit; ++i)
        take(m_found[i]);
    while (m_scanned < shows->size() && result.size() < limit) {
        const std::size_t index = m_texts->find(m_pattern, m_scanned);
        m_scanned = std::min(index + 1, shows->size());
        if (index == shows->size())
            break;
        m_found.push_back(index);
        take(index);
    }
    return result;
}

void SearchIndex::use(const std::shared_ptr<const ShowList>& shows)
{
    if (m_texts && m_texts->shows() == shows)
        return;
    m_texts = std::make_unique<const FoldedShows>(shows, m_texts.get());
    m_pattern = SearchPattern();
    m_found.clear();
    m_scanned = 0;
}

void SearchIndex::narrowTo(SearchPattern pattern)
{
    if (m_pattern.isEmpty() || !pattern.contains(m_pattern)) {
        m_found.clear();
        m_scanned = 0;
    } else {
        std::erase_if(m_found, [&](std::size_t show) { return !m_texts->holds(show, pattern); });
    }
    m_pattern = std::move(pattern);
}

void SearchIndex::clear()
{
    const std::lock_guard lock(m_mutex);
    m_texts.reset();
    m_pattern = SearchPattern();
    m_found = {};
    m_scanned = 0;
}

} // namespace vidora
