#include "core/TVChannel.h"
#include "store/TVListings.h"
#include "support/RawFiles.h"

#include <QDateTime>
#include <QTemporaryDir>

namespace vidora {
namespace {

class TVChannelTest : public ::testing::Test
{
protected:
    /// As a process finds it.
    TVChannel channel() const { return {aging, id, QStringLiteral("One"), QStringLiteral("sr"), {}, false}; }
    /// A list as old as the clock.
    void writeList() const
    {
        test::writeRaw(path, "list");
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(clock.now())),
                                     QFile::FileModificationTime));
    }

    const ObjectId id = ObjectId::initWithHex(u"58f4ded60befe78cb3360001");
    QTemporaryDir folder;
    const QString path = folder.filePath(TVListings::listingsFileFromChannelIdentificator(id));
    FixedClock clock{instantFromUnixMilliseconds(1'800'000'000'000)};
    ChannelAging aging{clock, folder.path(), [] { return 3600.0; }};
};

TEST_F(TVChannelTest, AnExpiredListStaysInUseAndIsStaleForTheNextProcessToo)
{
    TVChannel never = channel();
    never.expire();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_FALSE(never.timeLoaded()) << "what was never loaded is not stale but missing";

    writeList();
    TVChannel present = channel();
    EXPECT_EQ(present.timeLoaded(), clock.now());
    EXPECT_FALSE(present.reloadNeeded());
    present.expire();
    EXPECT_TRUE(present.reloadNeeded());
    EXPECT_EQ(test::readRaw(path), QByteArray("list"));
    EXPECT_TRUE(channel().reloadNeeded());

    TVChannel unwritten = channel(); // loaded, and not yet in its file
    QFile::remove(path);
    unwritten.setTimeLoaded(clock.now());
    EXPECT_FALSE(unwritten.reloadNeeded());
    unwritten.expire();
    EXPECT_TRUE(unwritten.reloadNeeded());
    EXPECT_TRUE(unwritten.timeLoaded());
}

TEST_F(TVChannelTest, TheFilesOfAnotherProcessAreLeftAsTheyAre)
{
    writeList();
    aging.readOnly = true;
    TVChannel shown = channel();
    shown.expire();
    EXPECT_TRUE(shown.reloadNeeded());
    EXPECT_FALSE(channel().reloadNeeded());
    shown.unload();
    EXPECT_FALSE(channel().reloadNeeded());
    aging.readOnly = false;
    shown.unload();
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace
} // namespace vidora
