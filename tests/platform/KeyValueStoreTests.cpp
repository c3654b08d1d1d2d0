#include "platform/AtomicFile.h"
#include "platform/KeyValueStore.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <thread>

using namespace vidora;
using ::testing::UnorderedElementsAre;

namespace {

const QString favorites = QStringLiteral("Favorites");
const QString channels = QStringLiteral("SelectedChannels");

class KeyValueStoreTest : public ::testing::Test
{
protected:
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("shared.sqlite"));
};

TEST_F(KeyValueStoreTest, KeepsTypedValuesAcrossRuns)
{
    const QByteArray id("\x00\xFF\x80 twelve", 10);
    const QCborArray old{QStringLiteral("title"), 5, true};
    {
        KeyValueStore store(path);
        store.setObject(QCborArray{QCborValue(id), old}, favorites);
        store.setObject(QCborMap{{QStringLiteral("from"), 22.5}}, QStringLiteral("noAlarmsSchedule.0"));
        store.setObject(qint64{1} << 60, QStringLiteral("lastAlarmMinutes"));
        store.setObject(true, QStringLiteral("noAlarmsSchedule"));
        store.setObject(QStringLiteral("Kućni:Local"), QStringLiteral("selectedCalendar"));
        store.setObject(QCborValue(id), QStringLiteral("gone"));
        store.removeObjectForKey(QStringLiteral("gone"));
    }
    EXPECT_EQ(QFile::permissions(path) & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    const KeyValueStore store(path);
    ASSERT_TRUE(store.arrayForKey(favorites));
    EXPECT_EQ(store.arrayForKey(favorites)->at(0).toByteArray(), id);
    EXPECT_EQ(store.arrayForKey(favorites)->at(1).toArray(), old);
    EXPECT_EQ(store.dictionaryForKey(QStringLiteral("noAlarmsSchedule.0"))->value(QStringLiteral("from")).toDouble(),
              22.5);
    EXPECT_EQ(store.longLongForKey(QStringLiteral("lastAlarmMinutes")), qint64{1} << 60);
    EXPECT_TRUE(store.boolForKey(QStringLiteral("noAlarmsSchedule")));
    EXPECT_EQ(store.stringForKey(QStringLiteral("selectedCalendar")), QStringLiteral("Kućni:Local"));
    // Of another kind:
    EXPECT_FALSE(store.dataForKey(favorites));
    EXPECT_FALSE(store.stringForKey(favorites));
    EXPECT_FALSE(store.dictionaryForKey(favorites));
    EXPECT_FALSE(store.arrayForKey(QStringLiteral("noAlarmsSchedule.0")));
    EXPECT_FALSE(store.boolForKey(favorites));
    EXPECT_FALSE(store.objectForKey(QStringLiteral("gone")));
    EXPECT_EQ(store.allKeys().size(), 5);
}

TEST_F(KeyValueStoreTest, TellsOfOthersChangesButNotOfItsOwn)
{
    KeyValueStore one(path), other(path);
    QStringList told;
    one.setChangedExternally([&](KeyValueStore::ChangeReason reason, const QStringList& keys) {
        EXPECT_EQ(reason, KeyValueStore::ChangeReason::ServerChange);
        EXPECT_TRUE(one.objectForKey(channels)); // may be asked from inside
        told += keys;
    });
    one.setObject(QCborArray{1}, favorites);
    one.setObject(QCborArray{1}, channels);
    EXPECT_TRUE(one.synchronize());
    EXPECT_TRUE(told.isEmpty());

    EXPECT_FALSE(other.objectForKey(favorites)); // nothing changes under a reader's hands
    EXPECT_TRUE(other.synchronize());
    EXPECT_EQ(other.arrayForKey(favorites), QCborArray{1});
    other.removeObjectForKey(favorites);
    other.setObject(QCborArray{1}, channels); // the same value again is no news
    other.setObject(2, QStringLiteral("lastAlarmMinutes"));
    EXPECT_TRUE(one.synchronize());
    EXPECT_THAT(told, UnorderedElementsAre(favorites, QStringLiteral("lastAlarmMinutes")));
    EXPECT_FALSE(one.objectForKey(favorites));
    told.clear();
    EXPECT_TRUE(one.synchronize());
    EXPECT_TRUE(told.isEmpty());
}

TEST_F(KeyValueStoreTest, SetsADamagedDatabaseAsideAndKeepsWhatItHolds)
{
    ASSERT_FALSE(AtomicFile::write(path, QByteArray(5000, 'x'), AtomicFile::Access::OwnerOnly).failed());
    KeyValueStore store(path);
    store.setObject(5, favorites);
    EXPECT_EQ(KeyValueStore(path).longLongForKey(favorites), 5);
    EXPECT_TRUE(QFile::exists(path + QStringLiteral(".unreadable")));

    ASSERT_FALSE(AtomicFile::write(path, QByteArray(5000, 'y'), AtomicFile::Access::OwnerOnly).failed());
    store.setObject(6, channels);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(KeyValueStore(path).longLongForKey(favorites), 5);
}

TEST_F(KeyValueStoreTest, LeavesADatabaseThatAnotherHasLockedWhereItIs)
{
    KeyValueStore(path).setObject(5, favorites);
    {
        QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("other"));
        other.setDatabaseName(path);
        ASSERT_TRUE(other.open());
        QSqlQuery query(other);
        ASSERT_TRUE(query.exec(QStringLiteral("BEGIN EXCLUSIVE")));
        KeyValueStore store(path, Milliseconds(0));
        EXPECT_FALSE(store.objectForKey(favorites));
        store.setObject(6, channels);
        EXPECT_FALSE(store.synchronize());
        EXPECT_FALSE(QFile::exists(path + QStringLiteral(".unreadable")));

        ASSERT_TRUE(query.exec(QStringLiteral("COMMIT")));
        EXPECT_TRUE(store.synchronize());
        EXPECT_EQ(store.longLongForKey(favorites), 5);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("other"));
    EXPECT_EQ(KeyValueStore(path).longLongForKey(channels), 6);
}

TEST_F(KeyValueStoreTest, WritesLaterWhatCouldNotBeWritten)
{
    const QString later = folder.filePath(QStringLiteral("later"));
    ASSERT_FALSE(AtomicFile::write(later, "not a folder", AtomicFile::Access::OwnerOnly).failed());
    KeyValueStore store(later + QStringLiteral("/shared.sqlite"));
    store.setObject(5, favorites);
    EXPECT_EQ(store.longLongForKey(favorites), 5);
    EXPECT_FALSE(store.synchronize());
    ASSERT_TRUE(QFile::remove(later));
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(KeyValueStore(later + QStringLiteral("/shared.sqlite")).longLongForKey(favorites), 5);
}

TEST_F(KeyValueStoreTest, MayBeUsedFromAnyThread)
{
    KeyValueStore store(path);
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&store, number] {
            for (int round = 0; round < 5; ++round) {
                store.setObject(round, QString::number(number));
                store.synchronize();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const KeyValueStore again(path);
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(again.longLongForKey(QString::number(number)), 4);
}

} // namespace
