#pragma once

#include "content/ObjectId.h"
#include "store/MergedShows.h"

#include <map>

namespace vidora {

using SharedShowList = std::shared_ptr<const ShowList>;

/// The lists of shows by channel. A value: a reader keeps the one it has taken, while a writer makes the next. Lists
/// and shows in it never change and are shared.
class ListingsDictionary
{
public:
    const std::map<ObjectId, SharedShowTable>& lists() const { return m_lists; }
    /// The list of a channel; null where there is none.
    SharedShowTable list(const ObjectId& channel) const;
    /// The list of popular shows, which is short and always looked at; null where there is none.
    const SharedShowList& popular() const { return m_popular; }
    /// The merged list as of the last `merge`: later changes of lists are not in it. Empty ahead of the first one. It
    /// stays as long as this object or a copy does.
    const MergedShows& merged() const;

    void set(const ObjectId& channel, SharedShowTable list) { m_lists[channel] = std::move(list); }
    void remove(const ObjectId& channel) { m_lists.erase(channel); }
    void setPopular(SharedShowList shows) { m_popular = std::move(shows); }
    /// Lets the lists as they are be the merged list, without the shows that have ended by now. Merges nothing yet.
    void merge(Instant now);

private:
    std::map<ObjectId, SharedShowTable> m_lists;
    SharedShowList m_popular;
    std::shared_ptr<const MergedList> m_merged;
};

/// Drops the shows at the head of a list up to the first that ends after now; the rest stays as it is. An empty list
/// when there is none.
ShowList cutThePast(ShowList list, Instant now);

/// The filter "end after now". A show without an end doesn't end after anything.
bool endsAfter(const TVEntry& entry, Instant now);

} // namespace vidora
