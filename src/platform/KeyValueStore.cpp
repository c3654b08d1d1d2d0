#include "platform/KeyValueStore.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

#include <atomic>

namespace vidora {

namespace {

// Every row carries the number of its last change and who made it, so that an instance asks only for what is newer than
// what it has seen and does not take its own changes for news. A removed key stays as a row without a value.
constexpr QLatin1String makeTable("CREATE TABLE IF NOT EXISTS key_values (key TEXT PRIMARY KEY, value BLOB, "
                                  "version BIGINT NOT NULL, writer TEXT NOT NULL)");
constexpr QLatin1String writeRow("INSERT INTO key_values (key, value, version, writer) "
                                 "VALUES (?, ?, (SELECT coalesce(max(version), 0) + 1 FROM key_values), ?) "
                                 "ON CONFLICT (key) DO UPDATE SET value = excluded.value, version = excluded.version, "
                                 "writer = excluded.writer");
constexpr QLatin1String readRows("SELECT key, value, version, writer FROM key_values WHERE version > ? "
                                 "ORDER BY version");

bool succeeded(const QSqlQuery& query)
{
    if (query.lastError().isValid())
        Log::line(QStringLiteral("key-value store: %1").arg(query.lastError().text()));
    return !query.lastError().isValid();
}

bool isDamaged(const QSqlError& error)
{
    // SQLITE_CORRUPT and SQLITE_NOTADB
    return error.nativeErrorCode() == QLatin1String("11") || error.nativeErrorCode() == QLatin1String("26");
}

/// Makes the file before SQLite does, which would leave it readable by everyone.
bool makeFile(const QString& path)
{
    return QFileInfo::exists(path) || !AtomicFile::write(path, {}, AtomicFile::Access::OwnerOnly).failed();
}

QCborValue decoded(const QVariant& column)
{
    if (column.isNull())
        return QCborValue(QCborValue::Undefined);
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(column.toByteArray(), &error);
    return error.error == QCborError::NoError ? value : QCborValue(QCborValue::Undefined);
}

} // namespace

KeyValueStore::KeyValueStore(QString path, Milliseconds patience)
    : m_path(std::move(path))
    , m_patience(patience)
    , m_writer(QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    synchronize();
}

bool KeyValueStore::withDatabase(const std::function<bool(QSqlDatabase&)>& work)
{
    static std::atomic<quint64> number = 0;
    const QString name = QStringLiteral("key-value-store-%1").arg(++number);
    bool result = false;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        database.setDatabaseName(m_path);
        database.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1").arg(m_patience.count()));
        result = open(database) && work(database);
    }
    QSqlDatabase::removeDatabase(name);
    return result;
}

bool KeyValueStore::open(QSqlDatabase& database)
{
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!makeFile(m_path))
            return false;
        if (!database.open()) {
            Log::line(QStringLiteral("key-value store: %1").arg(database.lastError().text()));
            return false;
        }
        QSqlQuery query(database);
        if (query.exec(makeTable))
            return true;
        succeeded(query);
        const bool damaged = isDamaged(query.lastError());
        database.close();
        if (!damaged || !AtomicFile::setAside(m_path))
            return false;
        m_lastVersion = 0;
        for (auto value = m_values.cbegin(); value != m_values.cend(); ++value)
            m_waiting.insert(value.key(), value.value());
    }
    return false;
}

bool KeyValueStore::writeWaiting(QSqlDatabase& database)
{
    while (!m_waiting.isEmpty()) {
        const auto change = m_waiting.constBegin();
        QSqlQuery query(database);
        query.prepare(writeRow);
        query.addBindValue(change.key());
        query.addBindValue(change->isUndefined() ? QVariant(QMetaType(QMetaType::QByteArray))
                                                 : QVariant(change->toCbor()));
        query.addBindValue(m_writer);
        query.exec();
        if (!succeeded(query))
            return false;
        m_waiting.erase(change);
    }
    return true;
}

bool KeyValueStore::readChanges(QSqlDatabase& database, QStringList& changedKeys)
{
    QSqlQuery query(database);
    query.setForwardOnly(true);
    query.prepare(readRows);
    query.addBindValue(m_lastVersion);
    query.exec();
    while (query.next()) {
        m_lastVersion = query.value(2).toLongLong();
        const QString key = query.value(0).toString();
        const QCborValue value = decoded(query.value(1));
        if (query.value(3).toString() == m_writer || value == m_values.value(key, QCborValue(QCborValue::Undefined)))
            continue;
        if (value.isUndefined())
            m_values.remove(key);
        else
            m_values.insert(key, value);
        changedKeys.append(key);
    }
    return succeeded(query);
}

bool KeyValueStore::synchronize()
{
    QStringList changedKeys;
    ChangedExternally callback;
    bool reached = false;
    {
        const std::lock_guard lock(m_mutex);
        reached = withDatabase(
            [&](QSqlDatabase& database) { return writeWaiting(database) && readChanges(database, changedKeys); });
        callback = m_changedExternally;
    }
    if (callback && !changedKeys.isEmpty())
        callback(ChangeReason::ServerChange, changedKeys);
    return reached;
}

void KeyValueStore::setChangedExternally(ChangedExternally callback)
{
    const std::lock_guard lock(m_mutex);
    m_changedExternally = std::move(callback);
}

void KeyValueStore::setObject(const QCborValue& value, const QString& forKey)
{
    const std::lock_guard lock(m_mutex);
    if (value.isUndefined())
        m_values.remove(forKey);
    else
        m_values.insert(forKey, value);
    m_waiting.insert(forKey, value);
    withDatabase([&](QSqlDatabase& database) { return writeWaiting(database); });
}

void KeyValueStore::removeObjectForKey(const QString& key)
{
    setObject(QCborValue(QCborValue::Undefined), key);
}

std::optional<QCborValue> KeyValueStore::objectForKey(const QString& key) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_values.constFind(key);
    return found == m_values.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<QString> KeyValueStore::stringForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && value->isString() ? std::optional(value->toString()) : std::nullopt;
}

std::optional<QByteArray> KeyValueStore::dataForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && value->isByteArray() ? std::optional(value->toByteArray()) : std::nullopt;
}

std::optional<QCborArray> KeyValueStore::arrayForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && value->isArray() ? std::optional(value->toArray()) : std::nullopt;
}

std::optional<QCborMap> KeyValueStore::dictionaryForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && value->isMap() ? std::optional(value->toMap()) : std::nullopt;
}

std::int64_t KeyValueStore::longLongForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value ? value->toInteger() : 0;
}

double KeyValueStore::doubleForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value ? value->toDouble() : 0;
}

bool KeyValueStore::boolForKey(const QString& key) const
{
    const auto value = objectForKey(key);
    return value && (value->toBool() || value->toInteger() != 0);
}

QStringList KeyValueStore::allKeys() const
{
    const std::lock_guard lock(m_mutex);
    return m_values.keys();
}

} // namespace vidora
