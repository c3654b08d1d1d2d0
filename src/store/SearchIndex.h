#pragma once

#include "store/FoldedShow.h"
#include "store/FoldedTexts.h"
#include "store/MergedShows.h"

#include <functional>
#include <mutex>

namespace vidora {

/// Search as the user types, over the folded texts of all lists, on two threads. Keeps a bit a show of what the last
/// query found: one that goes on with its pattern looks at these shows only, and a list that is new is searched alone.
/// Lists that are in no file yet are folded at their first search, and kept so. `clear` gives all of it back. May be
/// called on any thread; one query runs at a time.
class SearchIndex
{
public:
    using Wanted = std::function<bool(const ShowTable&, ShowTable::Row)>;

    /// The shows, in their order and not more than `limit`, in whose texts the pattern is found, ignoring case,
    /// diacritics and alphabet, and that are wanted. An empty pattern finds nothing.
    ShowList showsContainingPattern(const MergedShows& shows, QStringView pattern, std::size_t limit,
                                    const Wanted& wanted);

    /// Forgets everything: the search is over, or memory runs short.
    void clear();

private:
    /// A list, and in which of its shows the pattern's bytes are.
    struct Searched
    {
        explicit Searched(SharedShowTable searched)
            : table(std::move(searched))
            , texts(*table)
        {
        }
        void searchAll(const SearchPattern& pattern, QByteArray& scratch);
        void searchFound(const SearchPattern& pattern, QByteArray& scratch);

        SharedShowTable table;
        FoldedTexts texts;
        std::vector<bool> found; ///< of the length of the table once it was searched
        std::size_t count = 0;   ///< how many of these are set
    };

    void use(const MergedShows& shows);
    void narrowTo(SearchPattern pattern);

    std::mutex m_mutex;
    std::vector<std::unique_ptr<Searched>> m_lists; ///< one for each table of the merged list, in its order
    SearchPattern m_pattern;
};

} // namespace vidora
