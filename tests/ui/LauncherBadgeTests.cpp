#include "PrivateBus.h"
#include "app/window/LauncherBadge.h"

#include <QVariantMap>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace vidora {

/// Hears what a dock hears.
class Dock final : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void update(const QString& application, const QVariantMap& properties)
    {
        heard << QStringLiteral("%1 %2 %3")
                     .arg(application, properties.value(QStringLiteral("count")).toString(),
                          properties.value(QStringLiteral("count-visible")).toString());
    }

public:
    QStringList heard;
};

namespace {

TEST(LauncherBadge, TellsTheDocksOfEveryChange)
{
    test::PrivateBus bus;
    Dock dock;
    auto listening = bus.connection("dock");
    ASSERT_TRUE(listening.connect({}, {}, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"),
                                  &dock, SLOT(update(QString, QVariantMap))));
    {
        LauncherBadge badge(bus.connection("program"));
        for (const int count : {0, 3, 3, 12, 0})
            badge.setCount(count);
        const QString application = QStringLiteral("application://tv.ostrel.vidora.desktop ");
        EXPECT_TRUE(QTest::qWaitFor([&] { return dock.heard.size() >= 3; }, 60'000));
        EXPECT_EQ(dock.heard,
                  (QStringList{application + QStringLiteral("3 true"), application + QStringLiteral("12 true"),
                               application + QStringLiteral("0 false")}));
    }
    LauncherBadge nobodyListens{QDBusConnection(QStringLiteral("none"))};
    nobodyListens.setCount(3);
}

} // namespace
} // namespace vidora

#include "LauncherBadgeTests.moc"
