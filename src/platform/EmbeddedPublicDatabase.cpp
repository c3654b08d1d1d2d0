#include "platform/EmbeddedPublicDatabase.h"

#include "platform/AtomicFile.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>

#include <atomic>

namespace vidora {

namespace {

constexpr QLatin1String makeTable("CREATE TABLE IF NOT EXISTS show_counters (record_name TEXT PRIMARY KEY, "
                                  "counter BIGINT NOT NULL, modification_date BIGINT NOT NULL)");
constexpr QLatin1String readRecord("SELECT counter FROM show_counters WHERE record_name = ?");
constexpr QLatin1String writeRecord("INSERT INTO show_counters (record_name, counter, modification_date) "
                                    "VALUES (?, ?, ?) ON CONFLICT (record_name) DO UPDATE SET "
                                    "counter = excluded.counter, modification_date = excluded.modification_date");
constexpr QLatin1String removeRecord("DELETE FROM show_counters WHERE record_name = ?");

std::optional<PublicDatabaseError> errorOf(const QSqlError& error)
{
    return error.isValid() ? std::optional(PublicDatabaseError{error.text()}) : std::nullopt;
}

} // namespace

EmbeddedPublicDatabase::EmbeddedPublicDatabase(QString path, const Clock& clock)
    : m_path(std::move(path))
    , m_clock(clock)
    , m_queue(DispatchQueue::serial(QStringLiteral("ostrel.tv.public.database"), QualityOfService::Utility))
{
}

EmbeddedPublicDatabase::~EmbeddedPublicDatabase()
{
    // A fetch that runs may queue a write behind the first of these.
    m_queue->sync([] {});
    m_queue->sync([] {});
}

std::optional<PublicDatabaseError> EmbeddedPublicDatabase::run(const Prepare& prepare,
                                                               const std::function<void(QSqlQuery&)>& row)
{
    static std::atomic<quint64> number = 0;
    const QString name = QStringLiteral("public-database-%1").arg(++number);
    std::optional<PublicDatabaseError> error;
    {
        // Made ahead of SQLite, which would leave it readable by everyone.
        if (!QFileInfo::exists(m_path) && AtomicFile::write(m_path, {}, AtomicFile::Access::OwnerOnly).failed())
            return PublicDatabaseError{QStringLiteral("%1 can't be made").arg(m_path)};
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(m_path);
        if (!database.open()) {
            error = errorOf(database.lastError());
        } else {
            QSqlQuery query(database);
            query.exec(makeTable);
            prepare(query);
            query.exec();
            while (row && query.next())
                row(query);
            error = errorOf(query.lastError());
        }
    }
    QSqlDatabase::removeDatabase(name);
    return error;
}

void EmbeddedPublicDatabase::fetchRecordWithID(const QString& recordName, Fetched completion)
{
    m_queue->async([this, recordName, completion = std::move(completion)] {
        std::optional<CounterRecord> record;
        const auto error = run(
            [&](QSqlQuery& query) {
                query.prepare(readRecord);
                query.addBindValue(recordName);
            },
            [&](QSqlQuery& query) {
                record = CounterRecord{recordName, query.value(0).toLongLong()};
            });
        if (completion)
            completion(record, error);
    });
}

void EmbeddedPublicDatabase::saveRecord(const CounterRecord& record, Done completion)
{
    m_queue->async([this, record, completion = std::move(completion)] {
        const auto error = run([&](QSqlQuery& query) {
            query.prepare(writeRecord);
            query.addBindValue(record.recordName);
            query.addBindValue(qlonglong(record.counter));
            query.addBindValue(qlonglong(unixMilliseconds(m_clock.now())));
        });
        if (completion)
            completion(error);
    });
}

void EmbeddedPublicDatabase::deleteRecordWithID(const QString& recordName, Done completion)
{
    m_queue->async([this, recordName, completion = std::move(completion)] {
        const auto error = run([&](QSqlQuery& query) {
            query.prepare(removeRecord);
            query.addBindValue(recordName);
        });
        if (completion)
            completion(error);
    });
}

} // namespace vidora
