#include "WindowFixture.h"
#include "app/window/SingleInstance.h"
#include "app/window/WaitingNote.h"
#include "content/TVEntry.h"
#include "platform/HomeLock.h"
#include "platform/Timer.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTcpServer>

namespace vidora {
namespace {

using test::utf8;
using WindowTest = test::WindowTest;

TEST_F(WindowTest, LeadsFromNoChannelToAChannelsWeekAndBack)
{
    ASSERT_TRUE(window());
    EXPECT_EQ(enabledTabs(), QStringList{utf8("channels")});
    EXPECT_FALSE(screen().placeholder().isEmpty());

    chooseThree();
    EXPECT_EQ(cell(1, ScreenItemModel::AccessoryRole), utf8("checkmark"));
    EXPECT_EQ(m_device.delegate().channels().selected().size(), 3U);
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_TRUE(screen().isRoot());
    EXPECT_EQ(screen().rows()->rowCount(), 3);
    EXPECT_EQ(enabledTabs().size(), m_model.tabs()->rowCount());

    const int home = tabNamed(utf8("currently"));
    QTest::keyClick(window(), static_cast<Qt::Key>(Qt::Key_1 + home), Qt::ControlModifier);
    EXPECT_EQ(m_model.selectedTab(), home);
    DispatchQueue::runMain([&] { return rowOfKind(utf8("show")) > 0; });
    const QString channel = cell(0, ScreenItemModel::TextRole).toString();

    DispatchQueue::runMain([&] { return cell(0, ScreenItemModel::AccessoryRole) != utf8("activity"); });
    screen().select(0);
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    EXPECT_EQ(screen().title(), channel);
    EXPECT_GT(screen().rows()->rowCount(), 20);
    EXPECT_FALSE(cell(0, ScreenItemModel::SectionTitleRole).toString().isEmpty());
    QTest::keyClick(window(), Qt::Key_Escape);
    EXPECT_TRUE(screen().isRoot());
    m_device.quit();
}

TEST_F(WindowTest, OrdersAndEmptiesTheSelection)
{
    chooseThree();
    m_model.back();
    const auto before = m_device.delegate().channels().selected();
    screen().moveRow(0, 2);
    EXPECT_THAT(m_device.delegate().channels().selected(), ::testing::ElementsAre(before[1], before[2], before[0]));
    press(utf8("settings"));
    EXPECT_FALSE(screen().isRoot());
    m_model.back();
    screen().moveRow(7, 0);
    screen().removeRow(7);
    for (int left = 3; left > 0; --left)
        screen().removeRow(left - 1);
    EXPECT_TRUE(m_device.delegate().channels().selected().empty());
    EXPECT_EQ(enabledTabs(), QStringList{utf8("channels")});
    m_device.quit();
}

TEST_F(WindowTest, TurnsFromPhoneToPadAndKeepsItsTab)
{
    chooseThree();
    m_model.setPad(false);
    EXPECT_EQ(tabNamed(utf8("allshows")), -1);
    m_model.selectTab(tabNamed(utf8("search")));
    m_model.setPad(true);
    EXPECT_EQ(tabNamed(utf8("allshows")), 0);
    EXPECT_EQ(m_model.selectedTab(), tabNamed(utf8("search")));
    m_device.quit();
}

TEST_F(WindowTest, IsUsedByKeysAlone)
{
    press(utf8("add"));
    const auto type = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window(), key, modifiers);
        test::turn();
    };
    type(Qt::Key_F, Qt::ControlModifier);
    for (const char letter : {'l', 'i', 'p', 'a'})
        QTest::keyClick(window(), letter);
    EXPECT_EQ(screen().searchText(), utf8("lipa"));
    ASSERT_EQ(screen().rows()->rowCount(), 3);
    for (int row = 0; row < 3; ++row) {
        type(Qt::Key_Down); // out of the field, then through the rows
        if (row == 0)
            type(Qt::Key_Down);
        type(Qt::Key_Return);
    }
    const ChannelIds chosen = m_device.delegate().channels().selected();
    ASSERT_EQ(chosen.size(), 3U);
    type(Qt::Key_F, Qt::ControlModifier);
    type(Qt::Key_Escape);
    EXPECT_EQ(screen().searchText(), QString()) << "Escape clears the field before it leads back";
    ASSERT_FALSE(screen().isRoot());
    type(Qt::Key_Escape); // out of the field
    type(Qt::Key_Escape);
    ASSERT_TRUE(screen().isRoot());
    type(Qt::Key_Down);
    type(Qt::Key_Down, Qt::AltModifier);
    EXPECT_THAT(m_device.delegate().channels().selected(), ::testing::ElementsAre(chosen[1], chosen[0], chosen[2]));
    for (int left = 3; left > 0; --left)
        type(Qt::Key_Delete);
    EXPECT_TRUE(m_device.delegate().channels().selected().empty());
    EXPECT_EQ(enabledTabs(), QStringList{utf8("channels")});
    m_device.quit();
}

TEST_F(WindowTest, RefreshesAChannelWhileAPassRuns)
{
    chooseThree();
    m_model.selectTab(tabNamed(utf8("currently")));
    auto& progress = *qobject_cast<PassProgress*>(m_model.progress());
    DispatchQueue::runMain([&] { return rowOfKind(utf8("show")) > 0 && !progress.isRunning(); });
    screen().select(0);
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    test::turn();
    const int rows = screen().rows()->rowCount();
    const ObjectId channel = m_device.delegate().channels().selected().front();
    ASSERT_GT(m_device.delegate().channelData().at(channel).sources().size(), 1U);
    m_device.delegate().checkAndUpdateAllChannels();
    QTest::keyClick(window(), Qt::Key_F5);
    EXPECT_TRUE(screen().refreshing());
    QTest::keyClick(window(), Qt::Key_F5); // once more changes nothing
    DispatchQueue::runMain([&] { return progress.isRunning(); });
    EXPECT_GE(progress.wanted(), 1);
    DispatchQueue::runMain([&] { return !screen().refreshing() && !progress.isRunning(); });
    EXPECT_EQ(screen().rows()->rowCount(), rows);
    m_device.quit();
}

TEST_F(WindowTest, TakesAnAddressFromASecondStart)
{
    chooseThree();
    m_model.selectTab(tabNamed(utf8("currently")));
    DispatchQueue::runMain([&] { return rowOfKind(utf8("show")) > 0; });
    const Show show = screen().screen().rowAt({0, 2}).show;
    const auto address = TVEntry::urlDigestFromChannel(show->entry->channel(), *show->entry->dateTime(),
                                                       show->entry->identificator(), utf8("vidora"));
    ASSERT_TRUE(address);
    SingleInstance instance(QFileInfo(m_folder.path()).absoluteFilePath());
    instance.listen([&](const QString& message) { m_model.openAddress(message); });
    for (const QString& text :
         {utf8("vidora://c0000000000000000000000000000000"), utf8("http://h.example/"), address->text()}) {
        QProcess second;
        second.start(utf8(VIDORA_PROGRAM) + utf8("-window"), {utf8("--home"), m_folder.path(), text});
        DispatchQueue::runMain([&] { return second.state() == QProcess::NotRunning; });
        EXPECT_EQ(second.exitCode() == 0, text.startsWith(utf8("vidora")));
    }
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    EXPECT_EQ(screen().title(), show->entry->title());
    m_device.quit();
}

TEST(SingleInstance, HandsOverToWhoeverListens)
{
    const QTemporaryDir home;
    QStringList received;
    const auto handOver = [&](const QString& message) {
        bool isTaken = false, isOver = false;
        DispatchQueue::global(QualityOfService::UserInitiated).async([&] {
            isTaken = SingleInstance(home.path()).handOver(message);
            DispatchQueue::main().async([&] { isOver = true; });
        });
        DispatchQueue::runMain([&] { return isOver; });
        return isTaken;
    };
    EXPECT_FALSE(handOver(utf8("early")));
    SingleInstance instance(home.path());
    instance.listen([&](const QString& message) { received << message; });
    for (const QString& message : {QString(), utf8("vidora://show"), QString(100'000, QLatin1Char('x'))})
        EXPECT_TRUE(handOver(message)) << message.size();
    EXPECT_EQ(received, (QStringList{QString(), utf8("vidora://show"), QString(65'535, QLatin1Char('x'))}));
    instance.close();
    EXPECT_FALSE(handOver(utf8("late")));
}

TEST_F(WindowTest, KeepsItsPlaceWhenRowsAreReadAnew)
{
    press(utf8("add"));
    for (int row = 0; row < 12; ++row)
        screen().select(row);
    m_model.selectTab(tabNamed(utf8("currently")));
    auto& progress = *qobject_cast<PassProgress*>(m_model.progress());
    DispatchQueue::runMain([&] { return screen().rows()->rowCount() >= 5 * 12 && !progress.isRunning(); });
    QQuickItem* list = test::visibleList(*window()->contentItem());
    ASSERT_TRUE(list);
    const auto first = [&] {
        test::turn();
        int index = -1;
        QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(double, 100.0),
                                  Q_ARG(double, list->property("contentY").toDouble() + 60));
        return index;
    };
    test::turn();
    ASSERT_TRUE(QMetaObject::invokeMethod(list, "forceLayout"));
    ASSERT_TRUE(QMetaObject::invokeMethod(list, "positionViewAtIndex", Q_ARG(int, 30), Q_ARG(int, 0)));
    const int before = first();
    ASSERT_GT(before, 25);
    m_device.delegate().recolor();
    EXPECT_EQ(first(), before);
    m_model.timePassed();
    EXPECT_EQ(first(), before);
    m_device.delegate().applicationSignificantTimeChange();
    EXPECT_EQ(first(), before);
    m_device.quit();
}

TEST_F(WindowTest, SaysAMessageOnceAndListsChannelsInAPopover)
{
    chooseThree();
    m_model.setPad(true);
    m_model.selectTab(tabNamed(utf8("currently")));
    QSignalSpy alerts(&m_model, &WindowModel::alertPresented);
    const Alert offline{utf8("Offline"), utf8("No connection."), {{utf8("OK"), {}}}};
    for (int i = 0; i < 3; ++i)
        m_device.delegate().tabBarController().present(offline);
    EXPECT_EQ(alerts.size(), 1);
    m_model.answerAlert(0);
    m_device.delegate().tabBarController().present(offline);
    EXPECT_EQ(alerts.size(), 2);
    m_model.answerAlert(0);

    DispatchQueue::runMain([&] { return rowOfKind(utf8("show")) > 0; });
    const int section = cell(rowOfKind(utf8("show")), ScreenItemModel::SectionRole).toInt();
    screen().pressBarButton(0);
    auto* popover = qobject_cast<ScreenObject*>(m_model.popover());
    ASSERT_TRUE(popover);
    EXPECT_EQ(popover->rows()->rowCount(), 3);
    m_model.back();
    EXPECT_FALSE(m_model.popover());
    screen().pressBarButton(0);
    qobject_cast<ScreenObject*>(m_model.popover())->select(section);
    EXPECT_FALSE(m_model.popover());
    DispatchQueue::runMain([&] { return !screen().isRoot(); });
    m_device.quit();
}

/// Takes what is sent and never answers.
class SilentProvider
{
public:
    SilentProvider()
    {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] { ++m_requests; });
    }
    QString host() const { return utf8("127.0.0.1:%1").arg(m_server.serverPort()); }
    int requests() const { return m_requests; }

private:
    QTcpServer m_server;
    int m_requests = 0;
};

TEST(WindowEnd, WaitsForNoProviderInTheMidstOfAPass)
{
    constexpr Milliseconds timeOutOfARequest{20'000};
    const SilentProvider provider;
    const QTemporaryDir folder;
    CommandLine line = test::lineOn(folder);
    QDir(folder.path()).mkpath(utf8("settings"));
    QFile endpoints(folder.filePath(utf8("settings/endpoints.json")));
    ASSERT_TRUE(endpoints.open(QIODevice::WriteOnly));
    endpoints.write(utf8(R"({"n": {"scheme": "http", "host": "%1"}})").arg(provider.host()).toUtf8());
    endpoints.close();
    QElapsedTimer sinceClose;
    {
        Device device(line, Device::Access::Write, false);
        test::turn();
        ChannelIds fromThere;
        for (const auto& [id, channel] : device.delegate().channelData()) {
            if (channel.sources().front().startsWith(utf8("n.")))
                fromThere.push_back(id);
        }
        ASSERT_FALSE(fromThere.empty());
        device.delegate().channels().setSelected(fromThere);
        device.delegate().applicationDidBecomeActive();
        device.delegate().checkAndUpdateAllChannels();
        DispatchQueue::runMain([&] { return provider.requests() > 0; });
        sinceClose.start();
        EXPECT_TRUE(device.quit());
    }
    EXPECT_LT(sinceClose.elapsed(), timeOutOfARequest.count());
    EXPECT_EQ(provider.requests(), 1);
}

TEST(WindowStart, ShowsANoteWhileAnotherProcessHasTheHome)
{
    const QTemporaryDir folder;
    const CommandLine line = test::lineOn(folder);
    const StandardFolders folders = StandardFolders::under(folder.path());
    folders.make();
    auto other = std::make_unique<HomeLock>(folders.documents);
    std::optional<WaitingNote> note;
    Device device(line, Device::Access::Write, false, [&](const QString& reason) {
        EXPECT_THAT(reason.toStdString(), ::testing::HasSubstr("waiting for it"));
        note.emplace(reason);
        const auto windows = QGuiApplication::topLevelWindows();
        EXPECT_TRUE(
            std::any_of(windows.begin(), windows.end(), [](const QWindow* shown) { return shown->isVisible(); }));
        DispatchQueue::main().async([&] { other.reset(); });
    });
    EXPECT_TRUE(note);
    device.quit();
}

TEST(MinuteTicks, ComeAtTheStartOfEachMinute)
{
    ManualTimer timer;
    FixedClock clock(*instantFromIsoText(utf8("2026-11-22T19:00:40Z")));
    int ticks = 0;
    const auto pass = [&](int seconds) {
        clock.advance(Seconds(seconds));
        timer.advance(Seconds(seconds));
        test::turn();
        return ticks;
    };
    {
        const MinuteTicks minutes(clock, [&] { ++ticks; });
        EXPECT_EQ(pass(19), 0);
        EXPECT_EQ(pass(1), 1);
        EXPECT_EQ(pass(59), 1);
        EXPECT_EQ(pass(1), 2);
    }
    EXPECT_EQ(pass(60), 2);
}

TEST(Program, NeedsNoDisplayToHelp)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(utf8(name));
    for (const auto& [arguments, status] :
         {std::pair{QStringList{utf8("--help")}, 0}, {{utf8("--nonsense")}, 2}, {QStringList{}, 1}}) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(utf8(VIDORA_PROGRAM) + utf8("-window"), arguments);
        ASSERT_TRUE(process.waitForFinished(60'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), status);
        EXPECT_EQ(process.readAllStandardOutput().isEmpty(), status != 0);
    }
}

TEST(Program, LoadsEveryPartOfTheWindowInItsSelfTest)
{
    QProcess process;
    process.start(utf8(VIDORA_PROGRAM), {utf8("--self-test")});
    ASSERT_TRUE(process.waitForFinished(60'000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
}

} // namespace
} // namespace vidora

int main(int argc, char** argv)
{
    qputenv("TZ", "America/St_Johns");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    vidora::StreamMediaPlayer::chooseBackend();
    QGuiApplication application(argc, argv);
    ::testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
