#pragma once

#include "content/ShowElement.h"

#include <cstdint>
#include <mutex>
#include <unordered_map>

namespace vidora {

/// Remembers, by row, the shows of a list that somebody holds, so that a show that is looked at twice is the same
/// object for as long as anybody has it, its entry or its supplemental data. Keeps none alive. Any thread.
class HeldShows
{
public:
    using Row = std::uint32_t;

    Show show(Row row) const;
    std::shared_ptr<const TVEntry> entry(Row row) const;
    /// Makes a show out of parts that were read, unless it is there already; parts that somebody still holds take the
    /// place of those read.
    Show keep(Row row, ShowElement read);
    /// Remembers a show as it is.
    void remember(Row row, const Show& show);
    /// Takes over what another list remembers of the rows from `first` on, which are its rows from 0 on here.
    void takeOver(const HeldShows& other, Row first);
    /// Forgets the shows that nobody holds any more.
    void forgetReleased();

private:
    struct Parts
    {
        std::weak_ptr<const ShowElement> show;
        std::weak_ptr<const TVEntry> entry;
        std::weak_ptr<const TVEntrySupplementalData> extra;
        bool isReleased() const { return show.expired() && entry.expired() && extra.expired(); }
    };
    void put(Row row, const Show& show);
    void drop();

    mutable std::mutex m_mutex;
    std::unordered_map<Row, Parts> m_parts;
    std::size_t m_looksAgainAt = 64; ///< how many rows are remembered when released ones are looked for
};

} // namespace vidora
