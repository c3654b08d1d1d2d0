#include "app/window/LauncherBadge.h"

#include <QProcess>
#include <QTemporaryDir>
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
    const QTemporaryDir folder;
    QProcess daemon;
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                  QStringLiteral("--address=unix:path=") + folder.filePath(QStringLiteral("bus"))});
    ASSERT_TRUE(daemon.waitForReadyRead()) << daemon.errorString().toStdString();
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
    Dock dock;
    auto listening = QDBusConnection::connectToBus(address, QStringLiteral("dock"));
    ASSERT_TRUE(listening.connect({}, {}, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"),
                                  &dock, SLOT(update(QString, QVariantMap))));
    {
        LauncherBadge badge(QDBusConnection::connectToBus(address, QStringLiteral("program")));
        for (const int count : {0, 3, 3, 12, 0})
            badge.setCount(count);
        const QString application = QStringLiteral("application://tv.ostrel.vidora.desktop ");
        EXPECT_TRUE(QTest::qWaitFor([&] { return dock.heard.size() >= 3; }, 60'000));
        EXPECT_EQ(dock.heard,
                  (QStringList{application + QStringLiteral("3 true"), application + QStringLiteral("12 true"),
                               application + QStringLiteral("0 false")}));
    }
    for (const char* name : {"dock", "program"})
        QDBusConnection::disconnectFromBus(QString::fromLatin1(name));
    daemon.terminate();
    daemon.waitForFinished();

    LauncherBadge nobodyListens{QDBusConnection(QStringLiteral("none"))};
    nobodyListens.setCount(3);
}

} // namespace
} // namespace vidora

#include "LauncherBadgeTests.moc"
