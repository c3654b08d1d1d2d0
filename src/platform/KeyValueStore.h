#pragma once

#include "platform/Instant.h"

#include <QByteArray>
#include <QCborArray>
#include <QCborMap>
#include <QCborValue>
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

class QSqlDatabase;

namespace vidora {

/// The settings that a user's devices share: typed values by key, in an SQLite database that several instances (of this
/// process or another) may have open at once. Reads answer from memory and never wait for the disk; a write is on the
/// disk when it returns. What others wrote is seen at the next `synchronize`; the last writer of a key wins.
///
/// A value is a CBOR value (RFC 8949): bytes, text, number, bool, array, dictionary. All operations may be called on
/// any thread.
class KeyValueStore
{
public:
    enum class ChangeReason
    {
        ServerChange = 0,
        InitialSyncChange = 1,
        QuotaViolationChange = 2,
        AccountChange = 3
    };
    /// Called on the thread that called `synchronize`, with no lock held, when others changed at least one key.
    using ChangedExternally = std::function<void(ChangeReason reason, const QStringList& changedKeys)>;

    /// Opens or makes the database, readable by its owner alone. One that is damaged is moved aside. One that can't be
    /// opened at all or is locked leaves a store that keeps its values in memory and tries again at each write and
    /// `synchronize`. `patience`: how long a database that another connection has locked is waited for, each time.
    explicit KeyValueStore(QString path, Milliseconds patience = Seconds(5));

    std::optional<QCborValue> objectForKey(const QString& key) const;
    /// Each of these gives nothing for a value of another kind; numbers and bools then are 0 and false.
    std::optional<QString> stringForKey(const QString& key) const;
    std::optional<QByteArray> dataForKey(const QString& key) const;
    std::optional<QCborArray> arrayForKey(const QString& key) const;
    std::optional<QCborMap> dictionaryForKey(const QString& key) const;
    std::int64_t longLongForKey(const QString& key) const;
    double doubleForKey(const QString& key) const;
    bool boolForKey(const QString& key) const;
    QStringList allKeys() const;

    void setObject(const QCborValue& value, const QString& forKey);
    void removeObjectForKey(const QString& key);

    /// Writes what an earlier failure left waiting and takes over what others wrote. False when the database could not
    /// be reached.
    bool synchronize();
    /// Replaces the callback; an empty one ends the calls.
    void setChangedExternally(ChangedExternally callback);

private:
    bool open(QSqlDatabase& database);
    bool writeWaiting(QSqlDatabase& database);
    bool readChanges(QSqlDatabase& database, QStringList& changedKeys);
    /// Runs `work` on a connection of its own, which may thus be of any thread. `m_mutex` is held.
    bool withDatabase(const std::function<bool(QSqlDatabase&)>& work);

    const QString m_path;
    const Milliseconds m_patience;
    const QString m_writer; ///< tells this instance's own rows from those of others
    mutable std::mutex m_mutex;
    QHash<QString, QCborValue> m_values;
    QHash<QString, QCborValue> m_waiting; ///< not in the database yet; undefined removes
    qint64 m_lastVersion = 0;
    ChangedExternally m_changedExternally;
};

} // namespace vidora
