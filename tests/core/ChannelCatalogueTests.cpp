#include "core/ChannelCatalogue.h"
#include "core/PropertyList.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora {
namespace {

const QString id1 = QStringLiteral("58f4ded60befe78cb336a801");

ChannelDictionary channel(const QString& location, const QString& icon, const QString& language,
                          const QString& title = QStringLiteral("Kanal"))
{
    return ChannelDictionary({{QStringLiteral("Location"), location},
                              {QStringLiteral("Icon"), icon},
                              {QStringLiteral("Language"), language},
                              {QStringLiteral("Title"), title}});
}

QStringList keptIcons(const std::vector<ChannelDictionary>& channels)
{
    QStringList icons;
    for (const auto& kept : filteredChannels(channels, [](const QString& name) { return name != u"missing.png"; }))
        icons << *kept.icon();
    return icons;
}

TEST(ChannelCatalogue, dropsRecordsItCannotServe)
{
    const QString sr = QStringLiteral("sr");
    for (const char* icon : {"Serbian/", "/x.png", "x.png", "", "Serbian/missing.png", "serbian/x.png", "me/x.png"})
        EXPECT_TRUE(keptIcons({channel(id1, QLatin1String(icon), sr)}).isEmpty()) << icon;
    EXPECT_TRUE(keptIcons({channel(id1, QStringLiteral("Serbian/x.png"), sr, QString())}).isEmpty());
    EXPECT_TRUE(keptIcons({channel(id1, QStringLiteral("Serbian/x.png"), QStringLiteral("en"))}).isEmpty());
    EXPECT_TRUE(keptIcons({channel(id1, QStringLiteral("Serbian/x.png"), QString())}).isEmpty());
    EXPECT_EQ(keptIcons({channel(id1, QStringLiteral("Other/x.png"), QString())}).size(), 1);

    QVariantMap withoutLanguage = channel(id1, QStringLiteral("Other/x.png"), QString()).keys();
    withoutLanguage.remove(QStringLiteral("Language"));
    EXPECT_TRUE(keptIcons({ChannelDictionary(withoutLanguage)}).isEmpty()) << "an absent language is not an empty one";
    QVariantMap withoutLocation = channel(id1, QStringLiteral("Serbian/x.png"), sr).keys();
    withoutLocation.remove(QStringLiteral("Location"));
    EXPECT_TRUE(keptIcons({ChannelDictionary(withoutLocation)}).isEmpty());
}

TEST(ChannelCatalogue, keepsOfOneIdTheRecordNearestToHome)
{
    const auto sr = QStringLiteral("sr");
    const auto home = channel(id1, QStringLiteral("Serbian/a.png"), sr);
    const auto other = channel(id1, QStringLiteral("Other/b.png"), sr);
    const auto english = channel(id1, QStringLiteral("Other/c.png"), QStringLiteral("en"));
    const auto turkish = channel(id1, QStringLiteral("Other/d.png"), QStringLiteral("tr"));
    const auto second = channel(QStringLiteral("58f4ded60befe78cb336a802"), QStringLiteral("Serbian/e.png"), sr);

    EXPECT_EQ(keptIcons({other, home}), QStringList{QStringLiteral("Serbian/a.png")});
    EXPECT_EQ(keptIcons({home, other}), QStringList{QStringLiteral("Serbian/a.png")});
    EXPECT_EQ(keptIcons({english, turkish}), QStringList{QStringLiteral("Other/c.png")});
    const QStringList moved{QStringLiteral("Serbian/e.png"), QStringLiteral("Serbian/a.png")};
    EXPECT_EQ(keptIcons({english, second, home}), moved) << "what replaces another stands at the end";
}

TEST(ChannelCatalogue, readsSourcesUpToTheFirstGap)
{
    const ChannelDictionary gap({{QStringLiteral("Location1"), QStringLiteral("a")},
                                 {QStringLiteral("Location2"), 5},
                                 {QStringLiteral("Location3"), QStringLiteral("c")}});
    EXPECT_EQ(gap.sources(), std::vector<QString>{QStringLiteral("a")});
}

class CatalogueFilesTest : public ::testing::Test
{
protected:
    void writeCatalogue(const QStringList& titles)
    {
        QVariantList channels;
        for (const QString& title : titles)
            channels.append(channel(id1, QStringLiteral("Serbian/a.png"), QStringLiteral("sr"), title).keys());
        write(files.catalogue, writePropertyList(QVariantMap{{QStringLiteral("Channels"), channels}}));
    }
    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static void stamp(const QString& path, int seconds)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        file.setFileTime(QDateTime::fromSecsSinceEpoch(1'700'000'000 + seconds, Qt::UTC), QFile::FileModificationTime);
    }
    /// "cached" in front of what was not filtered anew.
    QString loadedTitle() const
    {
        bool isFiltered = false;
        const ChannelData data = loadChannelData(files, [&](const QString&) { return isFiltered = true; });
        const QString title = data.size() == 1 ? *data.begin()->second.title() : QString();
        return isFiltered || title.isEmpty() ? title : QStringLiteral("cached ") + title;
    }
    /// A catalogue of one channel, as old as is said, with a cache that was made of it and is younger than anything.
    void cacheOf(const QString& title, int seconds)
    {
        writeCatalogue({title});
        stamp(files.catalogue, seconds);
        QFile::remove(files.filteredCache);
        ASSERT_EQ(loadedTitle(), title);
        stamp(files.filteredCache, 1000);
    }

    QTemporaryDir folder;
    CatalogueFiles files{folder.filePath(QStringLiteral("Data.plist")), folder.filePath(QStringLiteral("icons")),
                         folder.filePath(QStringLiteral("5b65e9d23afbe36684bdfe2c.plist"))};
};

TEST_F(CatalogueFilesTest, trustsTheCacheOnlyWhileItIsYoungerThanTheCatalogue)
{
    cacheOf(QStringLiteral("one"), 0);
    EXPECT_EQ(loadedTitle(), u"cached one");
    stamp(files.filteredCache, 0);
    EXPECT_EQ(loadedTitle(), u"one") << "an equal date is no later date";
}

TEST_F(CatalogueFilesTest, takesNoCacheForThatOfAnotherCatalogue)
{
    cacheOf(QStringLiteral("mine"), 0);
    writeCatalogue({QStringLiteral("a guide from an older backup")});
    stamp(files.catalogue, -10);
    EXPECT_EQ(loadedTitle(), u"a guide from an older backup");

    cacheOf(QStringLiteral("mine"), 0);
    writeCatalogue({QStringLiteral("more")}); // of the same size and date
    stamp(files.catalogue, 0);
    EXPECT_EQ(loadedTitle(), u"more");

    cacheOf(QStringLiteral("mine"), 0);
    files.catalogue = folder.filePath(QStringLiteral("built-in.plist"));
    writeCatalogue({QStringLiteral("mine")}); // the guide is removed, its twin takes its place
    stamp(files.catalogue, 0);
    EXPECT_EQ(loadedTitle(), u"mine");
    QFile::remove(files.catalogue);
    EXPECT_EQ(loadedTitle(), u"cached mine") << "a selection must not go because its catalogue is away for a moment";
    files.catalogue = folder.filePath(QStringLiteral("elsewhere.plist"));
    EXPECT_EQ(loadedTitle(), QString());
}

TEST_F(CatalogueFilesTest, leavesTheCacheOfAnotherProcessAlone)
{
    cacheOf(QStringLiteral("mine"), 0);
    writeCatalogue({QStringLiteral("more")});
    stamp(files.catalogue, 0);
    files.readOnly = true;
    EXPECT_EQ(loadedTitle(), u"more");
    EXPECT_EQ(QFileInfo(files.filteredCache).lastModified().toSecsSinceEpoch(), 1'700'001'000);
    QFile::remove(files.filteredCache);
    EXPECT_EQ(loadedTitle(), u"more");
    EXPECT_FALSE(QFile::exists(files.filteredCache));
}

TEST_F(CatalogueFilesTest, rebuildsABrokenCache)
{
    cacheOf(QStringLiteral("whole"), 0);
    for (const QByteArray& broken :
         {QByteArray(), QByteArray("\xa1\x68"), QByteArray("\x9f\x9f\x9f\x9f"), QByteArray(64, '\xff')}) {
        write(files.filteredCache, broken);
        stamp(files.filteredCache, 1000);
        EXPECT_EQ(loadedTitle(), u"whole");
    }
}

TEST_F(CatalogueFilesTest, readsNothingFromAMissingOrForeignCatalogue)
{
    EXPECT_TRUE(loadChannelData(files, [](const QString&) { return true; }).empty());
    write(files.catalogue, "<html>not a property list</html>");
    QFile::remove(files.filteredCache);
    EXPECT_TRUE(loadChannelData(files, [](const QString&) { return true; }).empty());
}

TEST(PropertyList, refusesWhatNestsOrGrowsWithoutEnd)
{
    const QByteArray deep = "<plist>" + QByteArray("<array>").repeated(100'000);
    EXPECT_FALSE(readPropertyList(deep));

    // Forty lists, each holding the next one twice, stand for 2^40 values.
    QByteArray bomb = "bplist00";
    QByteArray offsets;
    for (int i = 0; i < 40; ++i) {
        offsets.append(static_cast<char>(bomb.size()));
        bomb.append('\xa2').append(static_cast<char>(i + 1)).append(static_cast<char>(i + 1));
    }
    offsets.append(static_cast<char>(bomb.size()));
    bomb.append('\x09'); // true
    const auto table = static_cast<char>(bomb.size());
    bomb += offsets + QByteArray(6, '\0') + "\x01\x01" + QByteArray(7, '\0') + '\x29' + QByteArray(8, '\0') +
            QByteArray(7, '\0') + table;
    EXPECT_FALSE(readPropertyList(bomb));
    EXPECT_FALSE(readPropertyList("bplist00"));
    EXPECT_FALSE(readPropertyList(QByteArray()));
}

/// A binary property list of one text; `objects` is what it says their number is.
QByteArray binaryText(const QString& text, int objects = 1)
{
    QByteArray list = "bplist00";
    list.append(static_cast<char>(0x60 | text.size()));
    for (const QChar unit : text)
        list.append(static_cast<char>(unit.unicode() >> 8)).append(static_cast<char>(unit.unicode() & 255));
    const auto table = static_cast<char>(list.size());
    const QByteArray zeros(7, '\0');
    return list.append('\x08') + QByteArray(6, '\0') + "\x01\x01" + zeros + static_cast<char>(objects) +
           QByteArray(8, '\0') + zeros + table;
}

TEST(PropertyList, readsTextsBeyondTheFirstPlaneAndNoHalves)
{
    // The first and the last of each half of a pair.
    for (const char32_t character : {U'\U00010000', U'\U0001F400', U'\U000103FF', U'\U0010FFFF'}) {
        const QString text = QStringLiteral("tv ") + QString::fromUcs4(&character, 1);
        EXPECT_EQ(readPropertyList(binaryText(text)), QVariant(text)) << static_cast<unsigned>(character);
        EXPECT_FALSE(readPropertyList(binaryText(text.chopped(1))));
        EXPECT_FALSE(readPropertyList(binaryText(text.right(1))));
    }
    EXPECT_FALSE(readPropertyList(binaryText(QStringLiteral("tv"), 2))) << "more objects than the table has room for";
}

TEST(PropertyList, readsBackWhatItWrites)
{
    const QVariantMap map{{QStringLiteral("Title"), QStringLiteral("Čačak <&> \"1\"")},
                          {QStringLiteral("Number"), qint64{7}},
                          {QStringLiteral("Flag"), true},
                          {QStringLiteral("List"), QVariantList{QStringLiteral("a"), 1.5}}};
    EXPECT_EQ(readPropertyList(writePropertyList(map)), QVariant(map));
}

} // namespace
} // namespace vidora
