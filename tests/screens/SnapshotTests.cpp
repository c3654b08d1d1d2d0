#include "ScreensFixture.h"
#include "screens/AllChannelsViewController.h"
#include "screens/ChannelListViewController.h"
#include "screens/ChannelViewController.h"
#include "screens/DetailViewController.h"
#include "screens/EditChannelListViewController.h"

#include <QMetaEnum>
#include <QUrl>

namespace vidora {
namespace {

// Compares a screen, row by row and role by role, with the file beside this test. VIDORA_REWRITE_SNAPSHOTS=1 writes the
// files anew; the difference is to be read before it is kept.
class SnapshotTest : public test::ScreensTest
{
protected:
    static QString text(const QVariant& value)
    {
        if (value.typeId() == QMetaType::QUrl) // the folder differs from run to run
            return value.toUrl().fileName();
        return value.toString().replace(QLatin1Char('\n'), QLatin1String("\\n"));
    }

    static QString dump(const std::shared_ptr<ScreenModel>& screen)
    {
        QString dump = QStringLiteral("title: %1\n").arg(screen->title());
        for (const BarButton& button : screen->rightBarButtonItems())
            dump += QStringLiteral("button %1: %2\n").arg(int(button.kind)).arg(button.title);
        ScreenItemModel model(screen);
        model.setStyle({{{colour::indigo, QStringLiteral("#indigo")},
                         {colour::alarmRed, QStringLiteral("#red")},
                         {colour::onAirGreen, QStringLiteral("#green")},
                         {colour::favouriteOrange, QStringLiteral("#orange")},
                         {colour::secondaryLabel, QStringLiteral("#grey")}},
                        1});
        if (model.rowCount() == 0)
            dump += QStringLiteral("placeholder: %1\n").arg(screen->placeholder());
        const auto names = model.roleNames();
        QList<int> roles = names.keys();
        std::sort(roles.begin(), roles.end());
        for (int row = 0; row < model.rowCount(); ++row) {
            dump += QLatin1Char('\n');
            for (const int role : roles)
                dump += QString::fromLatin1(names[role]) + QLatin1String(": ") +
                        text(model.data(model.index(row), role)) + QLatin1Char('\n');
        }
        return dump;
    }

    static void expectSnapshot(const QString& name, const std::shared_ptr<ScreenModel>& screen)
    {
        const QString path = QStringLiteral(VIDORA_TEST_DATA "/snapshots/%1.txt").arg(name);
        const QString actual = dump(screen);
        QFile file(path);
        if (qEnvironmentVariableIsSet("VIDORA_REWRITE_SNAPSHOTS")) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
            file.write(actual.toUtf8());
            FAIL() << name.toStdString()
                   << " is rewritten: read the difference, then run without VIDORA_REWRITE_SNAPSHOTS";
        }
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString() << " is missing";
        EXPECT_EQ(actual.toStdString(), file.readAll().toStdString()) << name.toStdString();
    }

    std::shared_ptr<ScreenModel> screenInSight() const { return tabs->visibleScreen(); }
};

TEST_F(SnapshotTest, Home)
{
    broadcast(1, {QStringLiteral("News"), QStringLiteral("Alarmed"), QStringLiteral("Favourite"),
                  QStringLiteral("<b>Bold</b> & <img src=\"http://x\">"), QStringLiteral("Beyond the row")});
    broadcast(2, {QStringLiteral("Only show")});
    start({channel(1, QStringLiteral("One")), channel(2, QStringLiteral("Two"), QStringLiteral("http://s.example/2")),
           channel(3, QStringLiteral("Three")),
           channel(4, QStringLiteral("Four"), QStringLiteral("http://s.example/4"))});
    expectSnapshot(QStringLiteral("home-without-lists"), screenInSight());
    device.update();
    expectSnapshot(QStringLiteral("home"), screenInSight());

    marks.alarmed = QStringLiteral("Alarmed");
    marks.favourite = QStringLiteral("Favourite");
    device.delegate->defaults().setBool(true, QStringLiteral("colorizedShows"));
    device.delegate->setup();
    expectSnapshot(QStringLiteral("home-coloured"), screenInSight());

    home().list();
    expectSnapshot(QStringLiteral("channel-list"), screenInSight());
}

TEST_F(SnapshotTest, ChannelAndShow)
{
    QStringList titles;
    for (int i = 0; i < 17; ++i) // St. John's midnight is 03:30 UTC, between the 15th hour and the 16th
        titles << QStringLiteral("Show %1").arg(i);
    broadcast(1, titles);
    start({channel(1, QStringLiteral("One"), QStringLiteral("http://s.example/1"))});
    device.update();
    home().selectRow({0, 0});
    awaited<ChannelViewController>();
    expectSnapshot(QStringLiteral("channel"), screenInSight());
    screenInSight()->selectRow({0, 1});
    expectSnapshot(QStringLiteral("detail"), screenInSight());
}

TEST_F(SnapshotTest, ChoosingChannels)
{
    const auto one = channel(1, QStringLiteral("Alfa")), two = channel(2, QString::fromUtf8("ćelija"));
    start({one, two, channel(3, QStringLiteral("alpha")), channel(4, QStringLiteral("24 sata"))}, {two, one});
    tabs->selectTab(4);
    expectSnapshot(QStringLiteral("editor"), screenInSight());
    visible<EditChannelListViewController>()->add();
    expectSnapshot(QStringLiteral("chooser"), screenInSight());
    screenInSight()->setSearchText(QStringLiteral("CEL"));
    expectSnapshot(QStringLiteral("chooser-search"), screenInSight());
    screenInSight()->setSearchText(QStringLiteral("no such"));
    expectSnapshot(QStringLiteral("chooser-nothing-found"), screenInSight());
    tabs->back();
    visible<EditChannelListViewController>()->trash();
    expectSnapshot(QStringLiteral("editor-empty"), screenInSight());
}

} // namespace
} // namespace vidora
