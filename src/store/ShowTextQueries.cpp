// Queries by title, address and text.
#include "store/TVListings.h"

namespace vidora {

namespace {
constexpr std::size_t maximumShows = 2000;
}

void TVListings::showWithURL(const URL& url, std::function<void(Show)> mainBlock)
{
    m_listingsDictionaryAccessQueue->async(
        [this, url, scheme = m_surroundings.settings.scheme(), mainBlock = std::move(mainBlock)] {
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
        ShowList result;
        for (const Show& show : *lists.merged().shows) {
            if (endsNotBefore(*show->entry, now) && show->entry->title() == title)
                result.push_back(show);
            if (result.size() == maximumShows)
                break;
        }
        return result;
    };
    compoundQuery(query, priority, std::move(mainBlock));
}

void TVListings::broadcastForTitle(const QString& title, bool previouslyShown, std::function<void(bool)> mainBlock)
{
    m_listingsDictionaryAccessQueue->async([this, title, previouslyShown, mainBlock = std::move(mainBlock)] {
        const auto lists = dictionary();
        const Instant now = m_surroundings.clock.now();
        const ShowList& shows = *lists->merged().shows;
        const bool isFound = std::any_of(shows.begin(), shows.end(), [&](const Show& show) {
            const TVEntry& entry = *show->entry;
            return entry.previouslyShown() == previouslyShown && endsNotBefore(entry, now) &&
                   entry.identificator() == title;
        });
        DispatchQueue::main().async([isFound, mainBlock] { mainBlock(isFound); });
    });
}

} // namespace vidora
