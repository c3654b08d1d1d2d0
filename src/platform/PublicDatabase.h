#pragma once

#include "platform/Instant.h"

#include <QString>

#include <functional>
#include <optional>

namespace vidora {

/// How often a title was marked, over all users.
struct CounterRecord
{
    QString recordName;
    std::int64_t counter = 0;
};

struct PublicDatabaseError
{
    QString localizedDescription; ///< for the log
};

/// The database that all users share: one record of the type "showCounter" for each title. Operations return at once
/// and may be called on any thread; completions come on a queue of the database, in the order of the calls, and may be
/// empty. The last writer of a record wins.
class PublicDatabase
{
public:
    using Fetched = std::function<void(const std::optional<CounterRecord>&, const std::optional<PublicDatabaseError>&)>;
    using Done = std::function<void(const std::optional<PublicDatabaseError>&)>;

    virtual ~PublicDatabase() = default;
    /// Neither a record nor an error when there is none of that name.
    virtual void fetchRecordWithID(const QString& recordName, Fetched completion) = 0;
    /// Writes the record as it is, and stamps it with the time of the change.
    virtual void saveRecord(const CounterRecord& record, Done completion) = 0;
    /// No error when there is none.
    virtual void deleteRecordWithID(const QString& recordName, Done completion) = 0;
};

} // namespace vidora
