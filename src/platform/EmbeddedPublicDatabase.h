#pragma once

#include "platform/Clock.h"
#include "platform/DispatchQueue.h"
#include "platform/PublicDatabase.h"

class QSqlDatabase;
class QSqlQuery;

namespace vidora {

/// The public database of a user who shares none with others: an SQLite file, readable by its owner alone.
class EmbeddedPublicDatabase final : public PublicDatabase
{
public:
    /// The clock outlives this object. The file is made at the first write.
    EmbeddedPublicDatabase(QString path, const Clock& clock);
    /// Waits until all is written.
    ~EmbeddedPublicDatabase() override;

    void fetchRecordWithID(const QString& recordName, Fetched completion) override;
    void saveRecord(const CounterRecord& record, Done completion) override;
    void deleteRecordWithID(const QString& recordName, Done completion) override;

private:
    using Prepare = std::function<void(QSqlQuery&)>;
    /// Runs one statement on a connection of its own. Reads all its rows.
    std::optional<PublicDatabaseError> run(const Prepare& prepare, const std::function<void(QSqlQuery&)>& row = {});

    const QString m_path;
    const Clock& m_clock;
    const std::shared_ptr<DispatchQueue> m_queue;
};

} // namespace vidora
