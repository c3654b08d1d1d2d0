#pragma once

#include "listings/PageScanner.h"

#include <optional>
#include <vector>

namespace vidora {

/// Where the pop-up sections of a page stand, by their codes. A code also finds a section whose own code only begins
/// with it. Each look-up takes logarithmic time, however many sections share a code.
class BarrandovPopUps
{
public:
    /// The page outlives the object.
    explicit BarrandovPopUps(const PageScanner& page);

    /// Brings back the sections that were passed.
    void restart();
    /// Leaves out the sections whose start lies ahead of the position. Positions only grow until the next restart.
    void pass(qsizetype position);
    /// Position behind the code in the marker of the first section that has this code; `code` holds no quote.
    std::optional<qsizetype> find(QStringView code) const;

private:
    struct PopUp
    {
        QStringView code; ///< with whatever stands behind it, up to the quote
        qsizetype at;     ///< where the marker begins
    };

    std::size_t earlier(std::size_t a, std::size_t b) const;

    std::vector<PopUp> m_sorted;           ///< by code, then by position
    std::vector<std::size_t> m_inPage;     ///< the same in the order of the page
    std::vector<std::size_t> m_tournament; ///< the earliest section of each range of `m_sorted`, as a binary tree
    std::size_t m_passed = 0;
};

} // namespace vidora
