// Queries by the titles that the user follows.
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;

auto endsLaterThan(Instant now)
{
    return [now](const ShowTable& table, ShowTable::Row row) { return table.endsAfter(row, now); };
}

/// The favourites' broadcasts whose rows fit, in order, up to the maximum.
template<typename Fits>
ShowList favoriteShows(const MergedShows& merged, const QSet<QString>& lowercasedNames, Fits fits)
{
    QSet<std::uint32_t> marks;
    for (const QString& name : lowercasedNames)
        marks.insert(ShowTable::markOf(name));
    ShowList result;
    if (marks.isEmpty())
        return result;
    for (auto place = merged.places().begin(); place != merged.places().end() && result.size() < maximumShows;
         ++place) {
        const ShowTable& table = merged.tableOf(*place);
        if (!fits(table, place->row) || !marks.contains(table.nameMarkOf(place->row)))
            continue;
        // By the raw title: the shown one follows the alphabet of the device.
        Show show = table.show(place->row);
        if (show && lowercasedNames.contains(*show->entry->lowercasedIdentificator()))
            result.push_back(std::move(show));
    }
    return result;
}

} // namespace

void TVListings::favoritesScheduleWithBlock(ShowsBlock block)
{
    read([this, block = std::move(block)](const ListingsDictionary& lists, Instant now) {
        block(std::make_shared<const ShowList>(
            favoriteShows(lists.merged(), m_surroundings.followed.lowercasedFavoriteNames(), endsLaterThan(now))));
    });
}

void TVListings::favoritesScheduleWithPriority(QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [this](const ListingsDictionary& lists, Instant now) {
        return favoriteShows(lists.merged(), m_surroundings.followed.lowercasedFavoriteNames(), endsLaterThan(now));
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::favoritesScheduleWithPartialAllowed(bool, URLBlock block)
{
    // Without favourites no show is looked at, whether or not the caller would take part of the answer.
    read(
        [this, scheme = m_surroundings.scheme, block = std::move(block)](const ListingsDictionary& lists, Instant now) {
            auto shows = std::make_shared<const ShowList>(
                favoriteShows(lists.merged(), m_surroundings.followed.lowercasedFavoriteNames(),
                              [now](const ShowTable& table, ShowTable::Row row) { return table.startOf(row) > now; }));
            auto byURL = std::make_shared<ShowsByURL>();
            for (const Show& show : *shows) {
                if (const auto url = show->entry->urlDigestWithScheme(scheme))
                    byURL->insert_or_assign(*url, show);
            }
            block(std::move(shows), std::move(byURL));
        });
}

} // namespace vidora
