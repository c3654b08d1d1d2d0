#include "core/ScreenProtocols.h"
#include "platform/Timer.h"
#include "support/TestDevice.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace vidora {
namespace {

using test::TestChannel;
using test::TestDevice;

const TestChannel one{QStringLiteral("58f4ded60befe78cb3360001"), QStringLiteral("One"), {QStringLiteral("n.a")}};
const TestChannel two{QStringLiteral("58f4ded60befe78cb3360002"), QStringLiteral("Two"), {QStringLiteral("n.b")}};
const ObjectId idOne = ObjectId::initWithHex(one.id), idTwo = ObjectId::initWithHex(two.id);

class TVChannelsTest : public ::testing::Test
{
protected:
    TVChannelsTest()
    {
        device.setCatalogue({one, two});
        device.launch();
    }
    TVChannels& channels() { return device.delegate->channels(); }
    QString selectionFile() const { return device.folders.documents + QStringLiteral("/selectedChannels.plist"); }
    QString listFile() const
    {
        return device.folders.caches + QLatin1Char('/') + TVListings::listingsFileFromChannelIdentificator(idOne);
    }
    TestDevice device;
};

TEST_F(TVChannelsTest, aChangedSettingIsOnDiskWithinASecond)
{
    ManualTimer timer;
    const auto onDisk = [&] {
        QFile file(device.folders.settings + QStringLiteral("/settings.json"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    UserDefaults& defaults = device.delegate->defaults();
    for (const bool value : {true, false}) { // and again after that
        defaults.setBool(value, QStringLiteral("show_img"));
        defaults.setInteger(7, QStringLiteral("currently_show_count"));
        test::settle();
        EXPECT_EQ(timer.pending(), 1U) << "one write for both";
        timer.advance(Seconds(1));
        test::settle();
        EXPECT_TRUE(onDisk().contains(value ? "\"show_img\": true" : "\"show_img\": false")) << onDisk().data();
    }
}

TEST_F(TVChannelsTest, aFreshDeviceHasNoSelectionAndNoFile)
{
    EXPECT_TRUE(channels().selected().empty());
    EXPECT_FALSE(QFile::exists(selectionFile()));
}

TEST_F(TVChannelsTest, theOrderOfTheUserSurvivesOnDiskAndInTheKeyValueStore)
{
    channels().setSelected({idTwo, idOne});
    channels().waitForWrites();
    const auto stored = device.delegate->keyValueStore().arrayForKey(TVChannels::keyInStore);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->first().toByteArray(), idTwo.data());

    const QFileDevice::Permissions others = QFile::permissions(selectionFile()) & (QFile::ReadGroup | QFile::ReadOther);
    EXPECT_FALSE(others) << "what the user chose is the user's alone";
    device.launch();
    const ChannelIds expected{idTwo, idOne};
    EXPECT_EQ(channels().selected(), expected);
    EXPECT_TRUE(channels().channelWithChannelId(idTwo));
}

TEST_F(TVChannelsTest, anEqualSelectionIsNotWrittenAgain)
{
    channels().setSelected({idOne, idTwo});
    channels().waitForWrites();
    QFile::remove(selectionFile());
    channels().setSelected({idOne, idTwo});
    channels().waitForWrites();
    EXPECT_FALSE(QFile::exists(selectionFile()));
    channels().setSelected({idTwo, idOne});
    channels().waitForWrites();
    EXPECT_TRUE(QFile::exists(selectionFile()));
}

TEST_F(TVChannelsTest, aChannelThatStaysKeepsItsObjectAndAnUnknownOneIsDropped)
{
    channels().setSelected({idOne});
    const auto object = channels().channelWithChannelId(idOne);
    object->setLoading(true);
    channels().setSelected({ObjectId::initWithHex(u"0123456789abcdef01234567"), idTwo, idOne});
    const ChannelIds known{idTwo, idOne};
    EXPECT_EQ(channels().selected(), known);
    EXPECT_EQ(channels().channelWithChannelId(idOne), object);
    EXPECT_FALSE(object->reloadNeeded()) << "what is loading is not fetched twice, however empty it is";
}

TEST_F(TVChannelsTest, brokenSelectionFilesAreNoSelection)
{
    const auto write = [&](const QByteArray& bytes) {
        QFile file(selectionFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    const QByteArray whole = "\x81\x4c" + idOne.data();
    for (const QByteArray& broken :
         {QByteArray(), QByteArray("garbage"), QByteArray("\x81\x01"), QByteArray("\x01"),
          QByteArray("\x82\x4c" + idOne.data()), QByteArray("\x9b\x7f\xff\xff\xff\xff\xff\xff\xff")}) {
        write(broken);
        device.launch();
        EXPECT_TRUE(channels().selected().empty()) << broken.toHex().data();
        test::settle();
        write(whole);
        EXPECT_EQ(channels().selected(), ChannelIds{idOne}) << "the file is tried again";
    }
}

TEST_F(TVChannelsTest, aListIsStaleOnceItsFileIsOlderThanTheInterval)
{
    device.delegate->defaults().setInteger(3'600, QStringLiteral("data_update"));
    channels().setSelected({idOne});
    EXPECT_TRUE(channels().channelWithChannelId(idOne)->reloadNeeded());
    QFile file(listFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.setFileTime(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(device.clock.now()), Qt::UTC),
                     QFile::FileModificationTime);
    file.close();

    device.clock.advance(Seconds(3'600));
    EXPECT_FALSE(channels().channelWithChannelId(idOne)->reloadNeeded());
    device.clock.advance(Milliseconds(1));
    EXPECT_TRUE(channels().channelWithChannelId(idOne)->reloadNeeded());

    channels().channelWithChannelId(idOne)->unload();
    EXPECT_FALSE(QFile::exists(listFile()));
    for (const QJsonValue& nonsense : {QJsonValue(1e300), QJsonValue(QStringLiteral("nan")), QJsonValue(-1e300)}) {
        device.delegate->defaults().setObject(nonsense, QStringLiteral("data_update"));
        EXPECT_TRUE(channels().channelWithChannelId(idOne)->reloadNeeded());
    }
}

struct Screen : ViewController, RootScreen, RecolorDelegate
{
    void reloadChannel(const ObjectId&, const ShowList&) override { told << QStringLiteral("reloadChannel"); }
    void selectedChannelsChanged() override { told << QStringLiteral("selectedChannelsChanged"); }
    void setModifiedSelectedChannels(bool) override { told << QStringLiteral("modified"); }
    bool isLoaded() const override { return loaded; }
    void passEnded(const std::vector<ObjectId>&) override {}
    void recolor() override { told << QStringLiteral("recolor"); }
    QStringList told;
    bool loaded = true;
};

struct CompoundScreen : ViewController, CompoundListingsScreen, NotificationsSynchedDelegate
{
    void reloadData() override { told << QStringLiteral("reloadData"); }
    void showActivity() override { told << QStringLiteral("showActivity"); }
    void notificationsSynched() override { told << QStringLiteral("notificationsSynched"); }
    QStringList told;
};

TEST_F(TVChannelsTest, theDelegateReachesTheOpenScreensByTheirProtocols)
{
    const auto home = std::make_shared<Screen>();
    const auto compound = std::make_shared<CompoundScreen>();
    const auto stack = std::make_shared<NavigationController>();
    stack->pushViewController(home);
    stack->pushViewController(compound);
    TabBarController& tabs = device.delegate->tabBarController();
    tabs.setViewControllers({stack, std::make_shared<NavigationController>(), std::make_shared<ViewController>()});

    device.delegate->recolor();
    device.delegate->favoritesUpdated();
    device.delegate->notificationsSynched();
    test::settle();
    test::settle();
    const QStringList home1{QStringLiteral("recolor"), QStringLiteral("recolor")};
    EXPECT_EQ(home->told, home1);
    const QStringList compound1{QStringLiteral("reloadData"), QStringLiteral("reloadData"),
                                QStringLiteral("notificationsSynched")};
    EXPECT_EQ(compound->told, compound1);

    device.delegate->disableTabs();
    EXPECT_EQ(tabs.selectedIndex(), 2U);
    EXPECT_FALSE(tabs.items()[0].enabled);
    EXPECT_TRUE(tabs.items()[2].enabled);
    device.delegate->enableTabs();
    EXPECT_TRUE(tabs.items()[0].enabled);
}

TEST_F(TVChannelsTest, aChangeOfTheSelectionTakesListsTabsAndScreensAlong)
{
    const auto home = std::make_shared<Screen>();
    const auto stack = std::make_shared<NavigationController>();
    stack->pushViewController(home);
    VidoraAppDelegate& delegate = *device.delegate;
    TabBarController& tabs = delegate.tabBarController();
    tabs.setViewControllers({stack, std::make_shared<NavigationController>()});
    delegate.disableTabs();
    const auto heldShows = [&](const ObjectId& channel) { return test::listOf(delegate, channel)->size(); };
    const auto store = [&](const ObjectId& channel) {
        ShowDraft draft;
        draft.entry->setIdentificator(QStringLiteral("News"));
        draft.entry->setChannel(channel);
        draft.entry->setDateTime(device.clock.now());
        draft.entry->setEndDateTime(device.clock.now() + Seconds(60));
        delegate.listings().storeList(channel, std::make_shared<const ShowList>(ShowList{std::move(draft).publish()}));
    };

    delegate.changeSelection({idOne, idTwo});
    EXPECT_TRUE(tabs.items()[0].enabled);
    store(idOne);
    store(idTwo);
    delegate.changeSelection({idTwo, idOne});
    EXPECT_EQ(heldShows(idOne) + heldShows(idTwo), 2U) << "another order takes nothing away";
    delegate.changeSelection({idTwo});
    EXPECT_EQ(heldShows(idOne), 0U);
    EXPECT_EQ(heldShows(idTwo), 1U);
    EXPECT_TRUE(tabs.items()[0].enabled);
    delegate.changeSelection({});
    EXPECT_EQ(heldShows(idTwo), 0U);
    EXPECT_FALSE(tabs.items()[0].enabled);
    EXPECT_EQ(tabs.selectedIndex(), 1U);
    EXPECT_EQ(home->told, QStringList(4, QStringLiteral("modified")));
}

TEST_F(TVChannelsTest, aChannelThatLeftTheCatalogueLeavesTheSelectionForGood)
{
    channels().setSelected({idOne, idTwo});
    channels().waitForWrites();
    device.setCatalogue({two});
    device.launch();
    channels().waitForWrites();
    device.setCatalogue({one, two});
    device.launch();
    EXPECT_EQ(channels().selected(), ChannelIds{idTwo});
}

TEST_F(TVChannelsTest, anActivationReadsSettingsAndRefreshesTheScreens)
{
    const auto home = std::make_shared<Screen>();
    const auto stack = std::make_shared<NavigationController>();
    stack->pushViewController(home);
    device.delegate->tabBarController().setViewControllers({stack});
    device.delegate->defaults().setInteger(0x107, QStringLiteral("currently_show_count"));
    device.delegate->applicationDidBecomeActive();
    EXPECT_EQ(device.delegate->showCount(), 7) << "the low byte counts";
    home->loaded = false;
    device.delegate->defaults().setInteger(0x100, QStringLiteral("currently_show_count"));
    device.delegate->applicationSignificantTimeChange();
    EXPECT_EQ(device.delegate->showCount(), 4);
    const QStringList told{QStringLiteral("selectedChannelsChanged"), QStringLiteral("modified")};
    EXPECT_EQ(home->told, told);
}

// A screen unloads while the pass stamps and another screen asks. ThreadSanitizer sees an access without the lock.
TEST_F(TVChannelsTest, theAgeOfAChannelMayBeAskedAndChangedOnSeveralThreads)
{
    channels().setSelected({idOne});
    const auto channel = channels().channelWithChannelId(idOne);
    DispatchGroup group;
    const auto often = [&](const std::function<void()>& work) {
        group.async(DispatchQueue::global(QualityOfService::UserInitiated), [work] {
            for (int i = 0; i < 200; ++i)
                work();
        });
    };
    often([&] { channel->unload(); });
    often([&] { channel->setTimeLoaded(device.clock.now()); });
    often([&] { channel->expire(); });
    often([&] { channel->setLoading(!channel->loading()); });
    often([&] { channel->timeLoaded(); });
    often([&] { channel->reloadNeeded(); });
    group.wait();
    channel->setLoading(false);
    channel->unload();
    EXPECT_TRUE(channel->reloadNeeded());
}

} // namespace
} // namespace vidora
