#include "PrivateBus.h"
#include "WindowFixture.h"
#include "app/window/WindowLife.h"
#include "platform/Timer.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QFile>
#include <QGuiApplication>
#include <QQuickItem>

namespace vidora {

/// The login manager of a machine with one session.
class LoginManager final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit LoginManager(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerService(QStringLiteral("org.freedesktop.login1"));
        m_bus.registerObject(QStringLiteral("/org/freedesktop/login1"), this,
                             QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    }
    void lock(const char* path, bool isLocked)
    {
        QDBusMessage change =
            QDBusMessage::createSignal(QString::fromLatin1(path), QStringLiteral("org.freedesktop.DBus.Properties"),
                                       QStringLiteral("PropertiesChanged"));
        change << QStringLiteral("org.freedesktop.login1.Session")
               << QVariantMap{{QStringLiteral("LockedHint"), isLocked}} << QStringList();
        m_bus.send(change);
    }

public Q_SLOTS:
    QDBusObjectPath GetSession(const QString& name) // NOLINT: the manager's name
    {
        return QDBusObjectPath(QStringLiteral("/org/freedesktop/login1/session/") + name);
    }

Q_SIGNALS:
    void PrepareForSleep(bool begins);

private:
    QDBusConnection m_bus;
};

namespace {

using test::utf8;

class ForegroundTest : public ::testing::Test
{
protected:
    QStringList takeSeen() { return std::exchange(seen, {}); }
    QStringList seen;
    FixedClock clock{*instantFromIsoText(utf8("2026-11-22T19:00:00Z"))};
    Foreground foreground{clock,
                          {[this] { seen << utf8("active"); }, [this] { seen << utf8("background"); },
                           [this] { seen << utf8("left alone"); }, [this] { seen << utf8("time"); }}};
};

TEST_F(ForegroundTest, IsAwayForAsLongAsAnythingHidesTheWindow)
{
    foreground.setShown(false);
    EXPECT_EQ(takeSeen(), QStringList(utf8("background")));
    foreground.setLocked(true);
    foreground.setAsleep(true);
    foreground.timeChanged();
    foreground.setShown(true);
    foreground.setAsleep(false);
    EXPECT_EQ(takeSeen(), QStringList()) << "a locked screen is all there is to see";
    foreground.setLocked(false);
    EXPECT_EQ(takeSeen(), QStringList(utf8("active")));
    foreground.setShown(true);
    foreground.timeChanged();
    EXPECT_EQ(takeSeen(), QStringList(utf8("time")));
}

TEST_F(ForegroundTest, IsActiveAgainAfterAWhileWithoutFocus)
{
    const auto leaveFor = [&](int seconds) {
        foreground.setFocused(false);
        for (int left = seconds; left > 0; left -= 60) {
            clock.advance(Seconds(std::min(left, 60)));
            foreground.minutePassed();
        }
        foreground.setFocused(true);
        return takeSeen();
    };
    EXPECT_EQ(leaveFor(59), QStringList()) << "a look at another window is no absence";
    EXPECT_EQ(leaveFor(60), QStringList(utf8("active")));
    EXPECT_EQ(leaveFor(299), QStringList(utf8("active")));
    EXPECT_EQ(leaveFor(3600), (QStringList{utf8("left alone"), utf8("active")})) << "what is pending is written once";
    EXPECT_EQ(leaveFor(300), (QStringList{utf8("left alone"), utf8("active")}));
    foreground.setFocused(false);
    clock.advance(Seconds(-3600));
    foreground.setFocused(true);
    EXPECT_EQ(takeSeen(), QStringList(utf8("active"))) << "nobody knows how long it was";
}

TEST_F(ForegroundTest, FocusThatFollowsAReturnIsNoSecondActivation)
{
    foreground.setFocused(false);
    foreground.setAsleep(true);
    clock.advance(Seconds(30'000));
    foreground.minutePassed();
    foreground.setAsleep(false);
    clock.advance(Seconds(3));
    foreground.setFocused(true);
    EXPECT_EQ(takeSeen(), (QStringList{utf8("background"), utf8("active")}));
}

TEST(LoginSession, TellsOfSleepAndOfItsOwnLock)
{
    test::PrivateBus bus;
    LoginManager manager(bus.connection("manager"));
    QStringList heard;
    const LoginSession session([&](bool begins) { heard << (begins ? utf8("asleep") : utf8("awake")); },
                               [&](bool isLocked) { heard << (isLocked ? utf8("locked") : utf8("unlocked")); },
                               bus.connection("program"), utf8("c2"));
    // The manager doesn't know when somebody begins to listen.
    const auto hears = [&](const char* expected, const std::function<void()>& tell) {
        heard.clear();
        return QTest::qWaitFor(
            [&] {
                tell();
                return heard.contains(utf8(expected));
            },
            60'000);
    };
    EXPECT_TRUE(hears("asleep", [&] { Q_EMIT manager.PrepareForSleep(true); }));
    EXPECT_TRUE(hears("awake", [&] { Q_EMIT manager.PrepareForSleep(false); }));
    EXPECT_TRUE(hears("locked", [&] { manager.lock("/org/freedesktop/login1/session/c2", true); }));
    EXPECT_TRUE(hears("unlocked", [&] { manager.lock("/org/freedesktop/login1/session/c2", false); }));
    EXPECT_TRUE(hears("unlocked", [&] {
        manager.lock("/org/freedesktop/login1/session/c1", true);
        manager.lock("/org/freedesktop/login1/session/c2", false);
    }));
    EXPECT_FALSE(heard.contains(utf8("locked"))) << "another user's session";
    const LoginSession nobody([](bool) { FAIL(); }, [](bool) { FAIL(); }, QDBusConnection(utf8("none")));
}

/// The real window on its home, with what happens to it.
class WindowLifeTest : public test::WindowTest
{
protected:
    WindowLifeTest()
    {
        const auto settle = [this] { DispatchQueue::runMain([this] { return !delegate().isUpdating(); }); };
        settle();
        ChannelIds all;
        for (const auto& [id, channel] : delegate().channelData())
            all.push_back(id);
        std::sort(all.begin(), all.end());
        all.resize(3);
        delegate().channels().setSelected(all);
        delegate().enableTabs();
        m_model.selectTab(tabNamed(utf8("currently"))); // which starts the one pass
        settle();
        DispatchQueue::runMain([&] { return rowOfKind(utf8("show")) > 0; });
    }
    VidoraAppDelegate& delegate() { return m_device.delegate(); }
    std::shared_ptr<TVChannel> channel(std::size_t index)
    {
        return delegate().channels().channelWithChannelId(delegate().channels().selected()[index]);
    }
    bool isActive() { return delegate().application().applicationState() == Application::State::Active; }
    int listFiles() const
    {
        const QDir caches(m_device.folders().caches);
        return static_cast<int>(caches.entryList({utf8("????????????????????????.plist")}).size());
    }
    /// The other programs of the desktop, as far as the toolkit tells of them.
    static void setFocused(bool isFocused)
    {
        Q_EMIT qGuiApp->applicationStateChanged(isFocused ? Qt::ApplicationActive : Qt::ApplicationInactive);
    }

    FixedClock clock{*instantFromIsoText(utf8("2026-11-22T19:00:00Z"))};
    WindowLife life{delegate(), *window(), clock, QDBusConnection(utf8("none"))};
};

TEST_F(WindowLifeTest, AMinimisedWindowLeavesEverythingOnDisk)
{
    const int before = listFiles();
    window()->setWindowStates(Qt::WindowMinimized);
    EXPECT_FALSE(isActive());
    EXPECT_TRUE(QTest::qWaitFor([&] { return listFiles() >= before + 3; }, 60'000));
    window()->setWindowStates(Qt::WindowNoState);
    EXPECT_TRUE(isActive());
    window()->hide();
    EXPECT_FALSE(isActive());
    window()->show();
    EXPECT_TRUE(isActive());
    m_device.quit();
}

TEST_F(WindowLifeTest, AListThatTurnedStaleIsReadAnewAtTheNextActivation)
{
    channel(0)->expire();
    setFocused(false);
    clock.advance(Seconds(59));
    setFocused(true);
    EXPECT_TRUE(channel(0)->reloadNeeded());
    setFocused(false);
    const int before = listFiles();
    clock.advance(Seconds(301));
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationInactive); // says the same again
    setFocused(true);
    DispatchQueue::runMain([&] { return !channel(0)->reloadNeeded() && !delegate().isUpdating(); });
    EXPECT_GE(listFiles(), before);
    m_device.quit();
}

TEST_F(WindowLifeTest, AStaleChannelIsReadAnewWhenItIsOpened)
{
    channel(0)->expire();
    screen().select(0);
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    DispatchQueue::runMain([&] { return !screen().refreshing(); });
    EXPECT_FALSE(channel(0)->reloadNeeded());
    channel(0)->expire();
    QTest::keyClick(window(), Qt::Key_F5);
    DispatchQueue::runMain([&] { return !screen().refreshing() && !channel(0)->reloadNeeded(); });
    m_device.quit();
}

TEST_F(WindowLifeTest, ShowsThatSomethingIsBeingFetched)
{
    auto* indicator = window()->findChild<QQuickItem*>(utf8("networkIndicator"));
    ASSERT_TRUE(indicator);
    DispatchQueue::runMain([&] { return !m_model.isNetworkActive(); });
    EXPECT_FALSE(indicator->isVisible());
    delegate().networkActivity().startNetworkActivity();
    DispatchQueue::runMain([&] { return m_model.isNetworkActive(); });
    EXPECT_TRUE(indicator->isVisible());
    delegate().networkActivity().stopNetworkActivity();
    DispatchQueue::runMain([&] { return !m_model.isNetworkActive(); });
    EXPECT_FALSE(indicator->isVisible());
    m_device.quit();
}

} // namespace
} // namespace vidora

#include "WindowLifeTests.moc"
