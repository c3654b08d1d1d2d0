#include "app/Device.h"
#include "app/window/Window.h"
#include "app/window/WindowModel.h"

#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include <gmock/gmock.h>

namespace vidora {
namespace {

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

CommandLine lineOn(const QTemporaryDir& folder)
{
    CommandLine line;
    line.home = folder.path();
    line.clock = instantFromIsoText(utf8("2026-11-22T19:00:00Z"));
    return line;
}

/// The window on a home of its own, over the sample region.
class WindowTest : public ::testing::Test
{
protected:
    WindowTest()
        : m_device(lineOn(m_folder), Device::Access::Write, true)
        , m_model(m_device.delegate())
    {
        prepareEngine(m_engine);
        m_engine.setInitialProperties({{utf8("app"), QVariant::fromValue<QObject*>(&m_model)}});
        m_engine.load(QUrl(utf8("qrc:/qt/qml/Vidora/Main.qml")));
        bool launched = false;
        DispatchQueue::main().async([&] { launched = true; });
        DispatchQueue::runMain([&] { return launched; });
        m_device.delegate().applicationDidBecomeActive();
    }

    ScreenObject& screen() { return *qobject_cast<ScreenObject*>(m_model.visibleScreen()); }
    QQuickWindow* window() { return qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0)); }
    QVariant cell(int row, int role) { return screen().rows()->index(row, 0).data(role); }
    int tabNamed(const QString& name)
    {
        const QVariantList tabs = m_model.tabs();
        for (int i = 0; i < tabs.size(); ++i) {
            if (tabs[i].toMap().value(utf8("symbol")).toString() == name)
                return i;
        }
        return -1;
    }
    QStringList enabledTabs()
    {
        QStringList names;
        for (const QVariant& tab : m_model.tabs()) {
            if (tab.toMap().value(utf8("enabled")).toBool())
                names << tab.toMap().value(utf8("symbol")).toString();
        }
        return names;
    }
    void press(const QString& symbol)
    {
        const QVariantList buttons = screen().barButtons();
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons[i].toMap().value(utf8("symbol")).toString() == symbol)
                return screen().pressBarButton(i);
        }
        ADD_FAILURE() << "no button " << symbol.toStdString();
    }
    int rowOfKind(const QString& kind)
    {
        for (int row = 0; row < screen().rows()->rowCount(); ++row) {
            if (cell(row, ScreenItemModel::KindRole).toString() == kind)
                return row;
        }
        return -1;
    }
    void chooseThree()
    {
        press(utf8("add"));
        ASSERT_FALSE(screen().isRoot());
        for (const int row : {0, 1, 2})
            screen().select(row);
    }

    QTemporaryDir m_folder;
    Device m_device;
    WindowModel m_model;
    QQmlApplicationEngine m_engine;
};

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
    EXPECT_EQ(enabledTabs().size(), m_model.tabs().size());

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
