#include "alarms/ShowCounters.h"

#include "platform/Log.h"

#include <algorithm>

namespace vidora {

namespace {

/// Logs a failure under the words that readers of these logs know.
PublicDatabase::Done logging(const char* operation, const QString& title)
{
    return [operation, title](const std::optional<PublicDatabaseError>& error) {
        if (error)
            Log::line(QStringLiteral("viewWillDisappear: %1: title=%2 error=%3")
                          .arg(QLatin1String(operation), title, error->localizedDescription));
    };
}

/// The counter after a change. Anyone may write to the database, so it may hold any number.
std::int64_t changed(const CounterRecord& record, std::int64_t amount)
{
    constexpr std::int64_t bound = 1'000'000'000'000;
    return std::clamp(record.counter, -bound, bound) + amount;
}

} // namespace

void ShowCounters::incrementCounterByAmount(std::int32_t amount, const QString& identificator)
{
    if (!m_database)
        return;
    m_database->fetchRecordWithID(
        identificator, [database = m_database, amount, identificator](const std::optional<CounterRecord>& record,
                                                                      const std::optional<PublicDatabaseError>& error) {
            if (!record || error)
                database->saveRecord({identificator, amount}, logging("saveRecord2", identificator));
            else if (changed(*record, amount) < 1)
                database->deleteRecordWithID(identificator, logging("deleteRecordWithID", identificator));
            else
                database->saveRecord({identificator, changed(*record, amount)}, logging("saveRecord1", identificator));
        });
}

void ShowCounters::favoriteAdded(const QString& title)
{
    if (!m_database)
        return;
    constexpr std::int64_t worth = 2;
    m_database->fetchRecordWithID(title, [database = m_database, title](const std::optional<CounterRecord>& record,
                                                                        const std::optional<PublicDatabaseError>&) {
        database->saveRecord({title, record ? changed(*record, worth) : worth}, {});
    });
}

void ShowCounters::favoriteRemoved(const QString& title)
{
    if (!m_database)
        return;
    m_database->fetchRecordWithID(title, [database = m_database, title](const std::optional<CounterRecord>& record,
                                                                        const std::optional<PublicDatabaseError>&) {
        if (!record)
            return;
        if (changed(*record, -1) < 1)
            database->deleteRecordWithID(title, {});
        else
            database->saveRecord({title, changed(*record, -1)}, {});
    });
}

} // namespace vidora
