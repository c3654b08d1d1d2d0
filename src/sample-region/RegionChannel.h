#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vidora::region {

/// What a channel mostly shows.
enum class Profile : std::uint8_t
{
    General,
    Films,
    Series,
    Documentary,
    Children,
    News,
    Entertainment,
    Music,
    Sports
};

/// One channel of the made-up region. Constant data; texts are UTF-8.
struct RegionChannel
{
    std::string_view title;
    std::string_view id;       ///< 24 hexadecimal digits
    std::string_view language; ///< as the catalogue has it
    std::string_view region;   ///< "Serbian" or "Other"
    std::string_view speech;   ///< language of its titles: sr, hr, hu, ro, cs, it, en
    Profile profile;
    /// Source ids, by priority. An id of "-hbo." ends in its country as well: the zone of its days is read from there.
    std::vector<std::string_view> sources;
    std::string_view stream = {}; ///< address of the live stream; empty where there is none
    bool titleInSubtitle = false; ///< its feed names the block as the title and the show in the second line

    /// File name of its icon: the title in lower-case ASCII letters and digits.
    std::string icon() const;
};

/// Where sources and streams stand whose whole address is part of the catalogue. The region serves it beside its
/// changing ports whenever the port is free.
inline constexpr int fixedPort = 26418;
/// Where the one stream stands whose server takes connections and never answers.
inline constexpr int silentPort = 26419;
/// The first of those that a region takes which a program starts for itself: what its lists hold of addresses, those of
/// pictures among them, leads somewhere in the next run too.
inline constexpr int usualPort = 26420;
/// The source id of the one channel page that is addressed by its provider's host.
inline constexpr std::string_view primaMaxSourceId = "max.prima.example";

/// All channels of the region, in the order of the catalogue.
const std::vector<RegionChannel>& regionChannels();

} // namespace vidora::region
