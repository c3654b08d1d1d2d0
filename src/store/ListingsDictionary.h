#pragma once

#include "content/ObjectId.h"
#include "content/ShowElement.h"

#include <map>
#include <memory>
#include <vector>

namespace vidora {

using SharedShowList = std::shared_ptr<const ShowList>;

/// The shows of all channels in one list, sorted by start, and beside it in rows what most queries look at, so that a
/// scan over a whole guide touches one block of memory and a show only where its row fits.
struct MergedShows
{
    struct Row
    {
        Instant start, end;
        std::uint32_t categories;
        bool classified;          ///< false: the show has no category mask at all
        qint32 titleSize;         ///< -1 without one; few shows have to be asked for their titles then
        qint32 identificatorSize; ///< the same
    };
    SharedShowList shows = std::make_shared<const ShowList>();
    std::vector<Row> rows; ///< of the same length as `shows`
};

/// The lists of shows by channel. A value: a reader keeps the one it has taken, while a writer makes the next. Lists
/// and shows in it never change and are shared.
class ListingsDictionary
{
public:
    using Lists = std::map<ObjectId, SharedShowList>;

    const Lists& lists() const { return m_lists; }
    /// The list under a key, or an empty one.
    const ShowList& list(const ObjectId& key) const;
    bool contains(const ObjectId& key) const { return m_lists.contains(key); }
    /// The merged list, always in step with the one under `ObjectId::all()`.
    const MergedShows& merged() const;

    void set(const ObjectId& key, SharedShowList list) { m_lists[key] = std::move(list); }
    void remove(const ObjectId& key) { m_lists.erase(key); }
    /// All shows of channels that end after now, by start; those of one start in the order of their channels' ids.
    std::shared_ptr<const MergedShows> merge(Instant now) const;
    /// Puts a merged list under `ObjectId::all()`; that key is absent when there are no shows.
    void setMerged(std::shared_ptr<const MergedShows> merged);

private:
    Lists m_lists;
    std::shared_ptr<const MergedShows> m_merged;
};

/// Drops the shows at the head of a list up to the first that ends after now; the rest stays as it is. An empty list
/// when there is none.
ShowList cutThePast(ShowList list, Instant now);

/// The filter "end after now". A show without an end doesn't end after anything.
bool endsAfter(const TVEntry& entry, Instant now);
/// The filter "end not before now". A show without an end passes it.
bool endsNotBefore(const TVEntry& entry, Instant now);

} // namespace vidora
