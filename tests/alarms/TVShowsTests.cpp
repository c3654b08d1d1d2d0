#include "alarms/TVShows.h"

#include <QCborArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {

namespace {

const Instant now = *instantFromIsoText(u"2026-11-22T19:00:00Z");

std::shared_ptr<const Favorite> favorite(const QString& title, int minutes = -1, std::optional<bool> shown = {})
{
    return std::make_shared<const Favorite>(title, minutes, now, shown);
}

class TVShowsTest : public ::testing::Test
{
protected:
    QString path() const { return folder.filePath(QStringLiteral("favorites.plist")); }
    QByteArray file() const
    {
        QFile read(path());
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray();
    }
    void writeFile(const QByteArray& bytes) const
    {
        QFile written(path());
        ASSERT_TRUE(written.open(QIODevice::WriteOnly));
        written.write(bytes);
    }
    std::unique_ptr<TVShows> start(TVShows::Access access = TVShows::Access::Write)
    {
        return std::make_unique<TVShows>(folder.path(), store, access);
    }

    QTemporaryDir folder;
    KeyValueStore store{folder.filePath(QStringLiteral("cloud.sqlite"))};
};

} // namespace

TEST_F(TVShowsTest, AListSurvivesTheProcessAndReachesTheOtherDevices)
{
    const auto first = start();
    EXPECT_FALSE(first->favorites());
    EXPECT_TRUE(first->favoriteNames().isEmpty());
    first->setFavorites({favorite(QStringLiteral("Dnevnik")), favorite(QStringLiteral("Šerlok"), 0, true)});
    first->waitForWrites();

    const auto second = start();
    const auto list = second->favorites();
    ASSERT_TRUE(list);
    ASSERT_EQ(list->size(), 2u);
    EXPECT_EQ((*list)[1]->identificator(), QStringLiteral("Šerlok"));
    EXPECT_EQ((*list)[1]->minutes(), 0);
    EXPECT_EQ((*list)[1]->date(), now);
    EXPECT_EQ((*list)[1]->previouslyShown(), true);
    EXPECT_FALSE((*list)[0]->previouslyShown());

    EXPECT_TRUE(second->containsFavoriteNamed(QStringLiteral("šERLOK")));
    EXPECT_FALSE(second->containsFavoriteNamed(QStringLiteral("Serlok")));
    EXPECT_EQ(second->favoriteNames(), (QSet<QString>{QStringLiteral("Dnevnik"), QStringLiteral("Šerlok")}));
    EXPECT_EQ(second->scheduleTimeForFavoriteNamed(QStringLiteral("DNEVNIK")), -1);
    EXPECT_EQ(second->scheduleTimeForFavoriteNamed(QStringLiteral("šerlok")), 0);
    EXPECT_FALSE(second->scheduleTimeForFavoriteNamed(QStringLiteral("Vesti")));

    const auto blobs = store.arrayForKey(TVShows::keyInStore);
    ASSERT_TRUE(blobs);
    ASSERT_EQ(blobs->size(), 2);
    const auto shared = Favorite::decoded(QCborValue::fromCbor(blobs->at(1).toByteArray()));
    ASSERT_TRUE(shared);
    EXPECT_EQ(shared->identificator(), QStringLiteral("Šerlok"));
}

TEST_F(TVShowsTest, OnlyAChangeIsWritten)
{
    const auto shows = start();
    const Favorites list{favorite(QStringLiteral("Dnevnik")), favorite(QStringLiteral("Vesti"))};
    shows->setFavorites(list);
    shows->waitForWrites();
    ASSERT_TRUE(QFile::remove(path()));
    shows->setFavorites(list);
    shows->waitForWrites();
    EXPECT_FALSE(QFile::exists(path()));

    shows->setFavorites({list[1], list[0]});
    shows->waitForWrites();
    EXPECT_TRUE(QFile::exists(path()));
    ASSERT_TRUE(QFile::remove(path()));

    // The first read of a process passes for a change.
    writeFile(archivedFavorites(list));
    store.removeObjectForKey(TVShows::keyInStore);
    const auto next = start();
    EXPECT_EQ(next->favorites()->size(), 2u);
    next->waitForWrites();
    EXPECT_TRUE(store.arrayForKey(TVShows::keyInStore));
}

TEST_F(TVShowsTest, BesideAnotherProcessNothingIsWritten)
{
    const auto shows = start(TVShows::Access::Read);
    shows->setFavorites({favorite(QStringLiteral("Dnevnik"))});
    shows->waitForWrites();
    EXPECT_TRUE(shows->containsFavoriteNamed(QStringLiteral("Dnevnik")));
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_FALSE(store.objectForKey(TVShows::keyInStore));
}

TEST_F(TVShowsTest, TheLastOfManyListsIsTheOneOnDisk)
{
    const auto shows = start();
    for (int i = 0; i < 50; ++i)
        shows->setFavorites({favorite(QString::number(i))});
    shows->waitForWrites();
    EXPECT_EQ(unarchivedFavorites(file())->front()->identificator(), QStringLiteral("49"));
}

TEST_F(TVShowsTest, AFileThatCantBeReadIsMovedAsideAheadOfTheNextWrite)
{
    const QByteArray whole = archivedFavorites({favorite(QStringLiteral("Dnevnik"), 5, false)});
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(unarchivedFavorites(whole.left(length))) << length;
    QCborMap map = favorite(QStringLiteral("Dnevnik"))->encoded();
    map.insert(QStringLiteral("later"), QStringLiteral("field"));
    EXPECT_TRUE(Favorite::decoded(map));
    for (const char* key : {"id", "minutes", "date"}) {
        QCborMap without = map, otherKind = map;
        without.remove(QLatin1String(key));
        otherKind.insert(QLatin1String(key), 1.5);
        EXPECT_FALSE(Favorite::decoded(without)) << key;
        EXPECT_FALSE(Favorite::decoded(otherKind)) << key;
    }

    writeFile(whole.chopped(1));
    const auto shows = start();
    EXPECT_FALSE(shows->favorites());
    EXPECT_EQ(file(), whole.chopped(1));
    shows->setFavorites({favorite(QStringLiteral("Vesti"))});
    shows->waitForWrites();
    EXPECT_TRUE(unarchivedFavorites(file()));
    EXPECT_TRUE(QFile::exists(path() + QStringLiteral(".unreadable")));
}

TEST_F(TVShowsTest, AFileThatCantBeMovedAsideIsNotWrittenOver)
{
    const QByteArray unreadable("from a later version");
    writeFile(unreadable);
    ASSERT_TRUE(QDir().mkpath(path() + QStringLiteral(".unreadable/in the way")));
    const auto shows = start();
    EXPECT_FALSE(shows->favorites());
    shows->setFavorites({favorite(QStringLiteral("Vesti"))});
    shows->waitForWrites();
    EXPECT_EQ(file(), unreadable);
    ASSERT_TRUE(QDir(path() + QStringLiteral(".unreadable")).removeRecursively());
    shows->setFavorites({favorite(QStringLiteral("Dnevnik"))});
    shows->waitForWrites();
    EXPECT_TRUE(unarchivedFavorites(file()));
}

} // namespace vidora
