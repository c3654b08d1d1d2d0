#pragma once

#include <cstddef>

namespace vidora {

/// The tabs of the window in their order. A phone has all but the first.
enum class TabKind
{
    AllShows,
    Currently,
    Categories,
    Search,
    Schedule,
    Channels
};

/// Place of a tab in the tab bar; of one that is there.
constexpr std::size_t tabIndex(TabKind tab, bool isPad)
{
    return static_cast<std::size_t>(tab) - (isPad ? 0 : 1);
}

} // namespace vidora
