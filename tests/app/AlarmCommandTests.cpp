#include "app/Program.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace vidora::test {

namespace {

/// The words of all .ics files of the home's calendars, one text a file.
QStringList events(const Home& home)
{
    QStringList result;
    QDirIterator files(home.path(QStringLiteral("documents/calendars")), {QStringLiteral("*.ics")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        result << QString::fromUtf8(file.readAll());
    }
    return result;
}

QByteArray guide(const char* start, const char* stop)
{
    return QByteArray("<tv><channel id='one'><display-name>One</display-name></channel>"
                      "<programme channel='one' start='20261122200000 +0000' stop='20261122201000 +0000'>"
                      "<title>Weather</title></programme><programme channel='one' start='") +
           start + "' stop='" + stop + "'><title>Evening News</title></programme></tv>";
}

} // namespace

TEST(AlarmCommands, AnAlarmFollowsItsBroadcastFromTheGuideToTheCalendarFolder)
{
    const Home home;
    const QString file = home.file(QStringLiteral("guide.xml"), guide("20261122210000 +0000", "20261122213000 +0000"));
    EXPECT_EQ(home.run({QStringLiteral("import"), file}).status, 0);
    EXPECT_EQ(home.run({QStringLiteral("select"), QStringLiteral("One")}).status, 0);
    EXPECT_EQ(home.run({QStringLiteral("update")}).status, 0);

    const Ended added = home.run({QStringLiteral("favourite"), QStringLiteral("evening"), QStringLiteral("--alarm"),
                                  QStringLiteral("10"), QStringLiteral("--json")});
    ASSERT_EQ(added.status, 0) << added.errors.toStdString();
    EXPECT_EQ(added.json()[QStringLiteral("favourite")].toObject()[QStringLiteral("title")],
              QStringLiteral("Evening News"));
    ASSERT_EQ(events(home).size(), 1);
    EXPECT_TRUE(events(home).front().contains(QStringLiteral("DTSTART:20261122T210000Z")));
    EXPECT_TRUE(events(home).front().contains(QStringLiteral("TRIGGER:-PT10M")));
    const QJsonArray alerts =
        home.run({QStringLiteral("alerts"), QStringLiteral("--json")}).json()[QStringLiteral("alerts")].toArray();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts.first().toObject()[QStringLiteral("minutes")], 10);

    // The provider moves the broadcast; the list on disk is old enough to be fetched anew.
    home.file(QStringLiteral("guide.xml"), guide("20261122213000 +0000", "20261122220000 +0000"));
    QDirIterator lists(home.path(QStringLiteral("caches")), {QStringLiteral("*.plist")}, QDir::Files);
    while (lists.hasNext())
        QFile::remove(lists.next());
    EXPECT_EQ(home.run({QStringLiteral("update")}).status, 0);
    ASSERT_EQ(events(home).size(), 1);
    EXPECT_TRUE(events(home).front().contains(QStringLiteral("DTSTART:20261122T213000Z")));

    EXPECT_EQ(home.run({QStringLiteral("silent-hours"), QStringLiteral("22:00"), QStringLiteral("07:00")}).status, 0);
    EXPECT_TRUE(events(home).isEmpty());
    EXPECT_EQ(home.run({QStringLiteral("silent-hours"), QStringLiteral("off")}).status, 0);
    EXPECT_EQ(events(home).size(), 1);
    EXPECT_EQ(home.run({QStringLiteral("calendars"), QStringLiteral("Vidora")}).status, 1) << "while there are alerts";
    EXPECT_EQ(home.run({QStringLiteral("unfavourite"), QStringLiteral("news")}).status, 0);
    EXPECT_TRUE(events(home).isEmpty());
}

TEST(AlarmCommands, OneBroadcast)
{
    const Home home;
    const QString file = home.file(QStringLiteral("guide.xml"), guide("20261122210000 +0000", "20261122213000 +0000"));
    EXPECT_EQ(home.run({QStringLiteral("import"), file}).status, 0);
    EXPECT_EQ(home.run({QStringLiteral("select"), QStringLiteral("One")}).status, 0);
    EXPECT_EQ(home.run({QStringLiteral("update")}).status, 0);
    const QStringList at{QStringLiteral("Weather"), QStringLiteral("--at"), QStringLiteral("2026-11-22T20:00:00Z")};
    for (const char* lead : {"15", "5"}) {
        const Ended set = home.run(QStringList{QStringLiteral("alarm")} + at +
                                   QStringList{QStringLiteral("--before"), QString::fromLatin1(lead)});
        EXPECT_EQ(set.status, 0) << set.errors.toStdString();
        ASSERT_EQ(events(home).size(), 1);
        EXPECT_TRUE(events(home).front().contains(QStringLiteral("TRIGGER:-PT%1M").arg(QLatin1String(lead))));
    }
    // A synchronisation leaves it alone, favourites there or not.
    EXPECT_EQ(home.run({QStringLiteral("favourite"), QStringLiteral("Evening News")}).status, 0);
    EXPECT_EQ(home.run({QStringLiteral("silent-hours"), QStringLiteral("off")}).status, 0);
    EXPECT_EQ(events(home).size(), 1);
    EXPECT_EQ(home.run({QStringLiteral("alerts"), QStringLiteral("--json")})
                  .json()[QStringLiteral("alerts")]
                  .toArray()
                  .size(),
              1);
    EXPECT_EQ(home.run({QStringLiteral("unalarm"), QStringLiteral("Wether")}).status, 1) << "a title that nobody has";
    EXPECT_EQ(home.run(QStringList{QStringLiteral("unalarm")} + at).status, 0);
    EXPECT_TRUE(events(home).isEmpty());

    for (const QStringList& refused : {QStringList{QStringLiteral("--before"), QStringLiteral("60")},
                                       QStringList{QStringLiteral("--on"), QStringLiteral("Two")}})
        EXPECT_EQ(home.run(QStringList{QStringLiteral("alarm")} + at + refused).status, 1);
    EXPECT_TRUE(events(home).isEmpty());
}

TEST(AlarmCommands, TitlesThatCarryMoreThanWords)
{
    const Home home;
    const auto favourite = [&](const char* title) {
        return home.run({QStringLiteral("favourite"), QString::fromUtf8(title)});
    };
    EXPECT_EQ(favourite(" ").status, 2);
    EXPECT_EQ(favourite("  spaced  ").output.section(QLatin1Char('\n'), 0, 0), QStringLiteral("A favourite: spaced"));
    EXPECT_EQ(favourite("red\x1b[31m").status, 0);
    EXPECT_EQ(favourite("100%1 %2").status, 0);
    EXPECT_EQ(home.run({QStringLiteral("favourites")}).output, QStringLiteral("100%1 %2\nred [31m\nspaced\n"));
    EXPECT_EQ(home.run({QStringLiteral("unfavourite"), QStringLiteral(" Spaced ")}).status, 0);
}

} // namespace vidora::test
