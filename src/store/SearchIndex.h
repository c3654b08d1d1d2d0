#pragma once

#include "store/FoldedShows.h"

#include <QString>

#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace vidora {

/// Search as the user types, over one list of shows at a time. Keeps the list's texts folded from the first query on,
/// and what the last query found: one that goes on with its pattern looks at these shows only. About a byte for each
/// character of the list's texts; `clear` gives it back. May be called on any thread; one query runs at a time.
class SearchIndex
{
public:
    using Wanted = std::function<bool(const ShowElement&)>;

    SearchIndex();
    ~SearchIndex();

    /// The shows, in the list's order and not more than `limit`, in whose texts the pattern is found, ignoring case and
    /// diacritics, and that are wanted. An empty pattern finds nothing. Published lists never change: another list is
    /// known by its pointer.
    ShowList showsContainingPattern(const std::shared_ptr<const ShowList>& shows, QStringView pattern,
                                    std::size_t limit, const Wanted& wanted);

    /// Forgets everything: the search is over, or memory runs short.
    void clear();

private:
    void use(const std::shared_ptr<const ShowList>& shows);
    void narrowTo(SearchPattern pattern);

    std::mutex m_mutex;
    std::unique_ptr<const FoldedShows> m_texts;
    SearchPattern m_pattern;
    std::vector<std::size_t> m_found; ///< shows ahead of m_scanned in which m_pattern is found
    std::size_t m_scanned = 0;
};

} // namespace vidora
