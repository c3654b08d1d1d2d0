// Queries by the titles that the user follows.
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;

/// The favourites' broadcasts whose rows fit, in order, up to the maximum.
template<typename Fits>
ShowList favoriteShows(const MergedShows& merged, const QSet<QString>& lowercasedNames, Fits fits)
{
    ShowList result;
    if (lowercasedNames.isEmpty())
        return result;
    for (std::size_t i = 0; i < merged.rows.size() && result.size() < maximumShows; ++i) {
        const Show& show = (*merged.shows)[i];
        // By the raw title: the shown one follows the alphabet of the device.
        const auto& title = show->entry->lowercasedIdentificator();
        if (fits(merged.rows[i]) && title && lowercasedNames.contains(*title))
            result.push_back(show);
    }
    return result;
}

} // namespace

void TVListings::favoritesScheduleWithBlock(ShowsBlock block)
{
    m_listingsDictionaryAccessQueue->async([this, block = std::move(block)] {
        const Instant now = m_surroundings.clock.now();
        block(std::make_shared<const ShowList>(
            favoriteShows(dictionary()->merged(), m_surroundings.followed.lowercasedFavoriteNames(),
                          [now](const MergedShows::Row& row) { return row.end > now; })));
    });
}

void TVListings::favoritesScheduleWithPriority(QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [this](const ListingsDictionary& lists, Instant now) {
        return favoriteShows(lists.merged(), m_surroundings.followed.lowercasedFavoriteNames(),
                             [now](const MergedShows::Row& row) { return row.end > now; });
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::favoritesScheduleWithPartialAllowed(bool, URLBlock block)
{
    // Without favourites no show is looked at, whether or not the caller would take part of the answer.
    m_listingsDictionaryAccessQueue->async([this, scheme = m_surroundings.scheme, block = std::move(block)] {
        const Instant now = m_surroundings.clock.now();
        auto shows = std::make_shared<const ShowList>(
            favoriteShows(dictionary()->merged(), m_surroundings.followed.lowercasedFavoriteNames(),
                          [now](const MergedShows::Row& row) { return row.start > now; }));
        auto byURL = std::make_shared<ShowsByURL>();
        for (const Show& show : *shows) {
            if (const auto url = show->entry->urlDigestWithScheme(scheme))
                byURL->insert_or_assign(*url, show);
        }
        block(std::move(shows), std::move(byURL));
    });
}

} // namespace vidora
