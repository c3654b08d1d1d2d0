#pragma once

#include "platform/PublicDatabase.h"

#include <cstdint>

namespace vidora {

/// Counts in the public database how often users mark a title, from which the list of popular shows is made. Returns at
/// once; failures are at most logged. Any thread.
class ShowCounters
{
public:
    /// The database outlives this object. Null: nothing is counted.
    explicit ShowCounters(PublicDatabase* database)
        : m_database(database)
    {
    }

    /// Adds to the counter of a title; a record that falls below 1 is deleted. A title without a record, or whose
    /// record can't be read, gets one with just the amount.
    void incrementCounterByAmount(std::int32_t amount, const QString& identificator);
    void favoriteAdded(const QString& title);
    void favoriteRemoved(const QString& title);

private:
    PublicDatabase* const m_database;
};

} // namespace vidora
