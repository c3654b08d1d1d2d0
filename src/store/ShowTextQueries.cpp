// Queries by title, address and text.
#include "store/TVListings.h"

namespace vidora {

namespace {

constexpr std::size_t maximumShows = 2000;

/// The first shows of a list that fit, up to the maximum.
template<typename Fits>
ShowList firstShows(const ShowList& shows, Fits fits)
{
    ShowList result;
    for (auto show = shows.begin(); show != shows.end() && result.size() < maximumShows; ++show) {
        if (fits(**show))
            result.push_back(*show);
    }
    return result;
}

} // namespace

void TVListings::showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock)
{
    m_listingsDictionaryAccessQueue->async([this, pattern, highPriorityBlock = std::move(highPriorityBlock)] {
        const SharedShowList all = dictionary()->merged().shows;
        const auto isCurrent = [now = m_surroundings.clock.now()](const ShowElement& show) {
            return endsNotBefore(*show.entry, now);
        };
        auto found = std::make_shared<const ShowList>(
            pattern.isEmpty() ? firstShows(*all, isCurrent)
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
    m_listingsDictionaryAccessQueue->async(
        [this, url, scheme = m_surroundings.scheme, mainBlock = std::move(mainBlock)] {
            const auto lists = dictionary();
            for (const Show& show : *lists->merged().shows) {
                if (show->entry->urlDigestWithScheme(scheme) == url) {
                    DispatchQueue::main().async([show, mainBlock] { mainBlock(show); });
                    return;
                }
            }
        });
}

void TVListings::showScheduleForTitle(const QString& title, QualityOfService priority, CompoundBlock mainBlock)
{
    const auto query = [title](const ListingsDictionary& lists, Instant now) {
        const MergedShows& merged = lists.merged();
        ShowList result;
        for (std::size_t i = 0; i < merged.rows.size() && result.size() < maximumShows; ++i) {
            const Show& show = (*merged.shows)[i];
            if (merged.rows[i].titleSize == title.size() && merged.rows[i].end >= now && show->entry->title() == title)
                result.push_back(show);
        }
        return result;
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::broadcastForTitle(const QString& title, bool previouslyShown, std::function<void(bool)> mainBlock)
{
    m_listingsDictionaryAccessQueue->async([this, title, previouslyShown, mainBlock = std::move(mainBlock)] {
        const auto lists = dictionary();
        const MergedShows& merged = lists->merged();
        const Instant now = m_surroundings.clock.now();
        bool isFound = false;
        for (std::size_t i = 0; i < merged.rows.size() && !isFound; ++i) {
            const MergedShows::Row& row = merged.rows[i];
            if (row.identificatorSize != title.size() || row.end < now)
                continue;
            const TVEntry& entry = *(*merged.shows)[i]->entry;
            isFound = entry.previouslyShown() == previouslyShown && entry.identificator() == title;
        }
        DispatchQueue::main().async([isFound, mainBlock] { mainBlock(isFound); });
    });
}

} // namespace vidora
