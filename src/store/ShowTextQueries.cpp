// Queries by title, address and text.
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;

} // namespace

void TVListings::showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock)
{
    read([this, pattern, highPriorityBlock = std::move(highPriorityBlock)](const ListingsDictionary& lists,
                                                                           Instant now) {
        const MergedShows& all = lists.merged();
        const auto isCurrent = [now](const ShowTable& table, ShowTable::Row row) {
            return table.endsNotBefore(row, now);
        };
        auto found = std::make_shared<const ShowList>(
            pattern.isEmpty() ? all.collect(maximumShows, isCurrent)
                              : m_searchIndex.showsContainingPattern(all, pattern, maximumShows, isCurrent));
        DispatchQueue::global(QualityOfService::UserInitiated).async([found = std::move(found), highPriorityBlock] {
            highPriorityBlock(found);
        });
    });
}

void TVListings::dropSearchIndex()
{
    m_searchIndex.clear();
}

void TVListings::showWithURL(const URL& url, std::function<void(Show)> mainBlock)
{
    read([url, scheme = m_surroundings.scheme, mainBlock = std::move(mainBlock)](const ListingsDictionary& lists,
                                                                                 Instant) {
        const MergedShows& merged = lists.merged();
        for (const MergedShows::Place& place : merged.places()) {
            const Show show = merged.show(place);
            if (show && show->entry->urlDigestWithScheme(scheme) == url) {
                DispatchQueue::main().async([show, mainBlock] { mainBlock(show); });
                return;
            }
        }
    });
}

void TVListings::showScheduleForTitle(const QString& title, QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [title, mark = ShowTable::markOf(title)](const ListingsDictionary& lists, Instant now) {
        const MergedShows& merged = lists.merged();
        ShowList result;
        for (auto place = merged.places().begin(); place != merged.places().end() && result.size() < maximumShows;
             ++place) {
            const ShowTable& table = merged.tableOf(*place);
            if (!table.endsNotBefore(place->row, now) || table.titleMarkOf(place->row).value_or(mark) != mark)
                continue;
            Show show = table.show(place->row);
            if (show && show->entry->title() == title)
                result.push_back(std::move(show));
        }
        return result;
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::broadcastForTitle(const QString& title, bool previouslyShown, std::function<void(bool)> mainBlock)
{
    read([title, mark = ShowTable::markOf(title.toLower()), previouslyShown,
          mainBlock = std::move(mainBlock)](const ListingsDictionary& lists, Instant now) {
        const MergedShows& merged = lists.merged();
        const bool isFound =
            std::any_of(merged.places().begin(), merged.places().end(), [&](const MergedShows::Place& place) {
                const ShowTable& table = merged.tableOf(place);
                if (table.nameMarkOf(place.row) != mark || !table.endsNotBefore(place.row, now) ||
                    table.isPreviouslyShown(place.row) != previouslyShown)
                    return false;
                const Show show = table.show(place.row);
                return show && show->entry->identificator() == title;
            });
        DispatchQueue::main().async([isFound, mainBlock] { mainBlock(isFound); });
    });
}

} // namespace vidora
