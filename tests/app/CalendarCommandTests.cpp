#include "app/Program.h"
#include "calendar/CalDAVServer.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/un.h>

namespace vidora::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr const char* password = "s3cret";

QStringList words(const char* line)
{
    return QString::fromUtf8(line).split(QLatin1Char(' '));
}

/// A bus address for the programs that a test runs.
class Bus
{
public:
    explicit Bus(const QByteArray& address) { qputenv("DBUS_SESSION_BUS_ADDRESS", address); }
    ~Bus() { qputenv("DBUS_SESSION_BUS_ADDRESS", m_before); }

private:
    const QByteArray m_before = qgetenv("DBUS_SESSION_BUS_ADDRESS");
};

class CalendarCommands : public ::testing::Test
{
protected:
    CalendarCommands() { qputenv("no_proxy", "127.0.0.1"); }
    Ended add(const QByteArray& input, const char* user = "ana") const
    {
        return home.run(QStringList{QStringLiteral("calendars"), QStringLiteral("add"), server.address(),
                                    QStringLiteral("--log"), QStringLiteral("--user"), QString::fromLatin1(user)},
                        input);
    }
    Ended run(const char* line) const { return home.run(words(line)); }
    /// The files of the home that hold the password.
    QStringList filesWithPassword() const
    {
        QStringList names;
        for (const auto& [path, bytes] : home.files()) {
            if (bytes.contains(password))
                names << QFileInfo(path).fileName();
        }
        return names;
    }
    /// A guide with a broadcast at this time on 22 November 2026, and the day's lists forgotten.
    QString provide(const char* time) const
    {
        const QString path = home.file(
            QStringLiteral("guide.xml"),
            QByteArray("<tv><channel id='one'><display-name>One</display-name></channel><programme channel='one' "
                       "start='20261122") +
                time + "00 +0000' stop='20261122235900 +0000'><title>Evening News</title></programme></tv>");
        QDirIterator lists(home.path(QStringLiteral("caches")), {QStringLiteral("*.plist")}, QDir::Files);
        while (lists.hasNext())
            QFile::remove(lists.next());
        return path;
    }
    /// The events on the server as an independent program shows them.
    QString shown() const { return test::linesOfKhal(server.calendar("tv")).join(QLatin1Char('\n')); }

    const Home home;
    test::CalDAVServer server;
};

TEST_F(CalendarCommands, AlarmsLiveOnAServerAndWaitForItWhereItIsDown)
{
    const Bus none("unix:path=/nonexistent");
    ASSERT_EQ(home.run({QStringLiteral("import"), provide("2100")}).status, 0);
    ASSERT_EQ(run("select One").status, 0);
    ASSERT_EQ(run("update").status, 0);
    const Ended added = add(QByteArray(password) + "\n");
    ASSERT_EQ(added.status, 0) << added.errors.toStdString();
    EXPECT_THAT(added.output.toStdString(), HasSubstr("TV: can be written"));
    EXPECT_THAT(added.output.toStdString(), HasSubstr("Shared: read-only"));
    EXPECT_FALSE(added.output.contains(QLatin1String(password)) || added.errors.contains(QLatin1String(password)));
    EXPECT_EQ(filesWithPassword(), QStringList{QStringLiteral("calendar-passwords.json")});
    EXPECT_EQ(QFile(home.path(QStringLiteral("documents/calendar-passwords.json"))).permissions() &
                  (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());

    EXPECT_EQ(run("calendars shared").status, 1) << "it can't be written";
    ASSERT_EQ(run("calendars tv").status, 0);
    ASSERT_EQ(run("favourite evening --alarm 10").status, 0);
    EXPECT_THAT(shown().toStdString(), HasSubstr("2026-11-22 21:00 Evening News|One|"));

    server.stop();
    provide("2130");
    const Ended offline = home.run(words("update --log"));
    EXPECT_EQ(offline.status, 0);
    EXPECT_THAT(offline.errors.toStdString(), HasSubstr("calendar server: "));
    const QJsonObject listed = run("calendars --json").json();
    EXPECT_EQ(listed[QStringLiteral("accounts")][0][QStringLiteral("waitingChanges")], 1);
    EXPECT_EQ(run("calendars test").status, 1);
    EXPECT_EQ(run("calendars remove ana").status, 1) << "alarms live there";
    EXPECT_THAT(shown().toStdString(), HasSubstr("21:00"));
    server.start();
    EXPECT_EQ(run("update").status, 0);
    EXPECT_THAT(shown().toStdString(), HasSubstr("2026-11-22 21:30 Evening News|One|"));
    const QJsonObject tested = run("calendars test --json").json()[QStringLiteral("accounts")][0].toObject();
    EXPECT_EQ(tested[QStringLiteral("login")], QStringLiteral("basic"));
    EXPECT_EQ(tested[QStringLiteral("waitingChanges")], 0);
    EXPECT_EQ(tested[QStringLiteral("calendars")].toArray().size(), 3);

    EXPECT_EQ(run("unfavourite evening").status, 0);
    EXPECT_TRUE(shown().isEmpty());
    EXPECT_EQ(run("calendars remove ana").status, 0);
    EXPECT_TRUE(filesWithPassword().isEmpty());
    EXPECT_EQ(run("calendars --json").json()[QStringLiteral("calendars")].toArray().size(), 1);
}

TEST_F(CalendarCommands, SayWhatIsWrong)
{
    const Bus none("unix:path=/nonexistent");
    EXPECT_EQ(add("").status, 1);
    EXPECT_EQ(add("\n").status, 1);
    EXPECT_EQ(add(QByteArray(5000, 'x')).status, 1);
    const Ended refused = add("gu3ss\n");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.errors.toStdString(), HasSubstr("does not accept this user with this password"));
    EXPECT_THAT(refused.errors.toStdString(), Not(HasSubstr("gu3ss")));
    for (const char* line : {"calendars test", "calendars remove x", "calendars nonsense"})
        EXPECT_EQ(run(line).status, 1) << line;
    EXPECT_TRUE(run("calendars --json").json()[QStringLiteral("accounts")].toArray().isEmpty());

    home.write(home.path(QStringLiteral("settings/calendar-accounts.json")),
               R"([7, {"id": "../../x", "name": "a"}, {"id": "0123456789abcdef"},
                   {"id": "0123456789abcdef", "name": "ana", "address": "127.0.0.1:1", "user": "ana"},
                   {"id": "0123456789abcdef", "name": "twice"}])");
    const Ended listed = run("calendars --json");
    EXPECT_EQ(listed.json()[QStringLiteral("accounts")].toArray().size(), 1);
    const Ended tested = run("calendars test");
    EXPECT_EQ(tested.status, 1);
    EXPECT_THAT(tested.output.toStdString(), HasSubstr("The server can't be reached."));
}

TEST_F(CalendarCommands, KeepThePasswordInTheKeyringWhereThereIsOne)
{
    QTemporaryDir folder;
    const QString script = folder.filePath(QStringLiteral("keyring.sh"));
    test::writeRaw(script, "set -e\nexport HOME=" + folder.path().toUtf8() + " XDG_DATA_HOME=" +
                               folder.path().toUtf8() + " XDG_RUNTIME_DIR=" + folder.path().toUtf8() +
                               "\nprintf unlocked | gnome-keyring-daemon --unlock --components=secrets\n"
                               "vidora=\"$1 --home $2 --clock 2026-11-22T19:00:00Z\"\n"
                               "echo s3cret | $vidora calendars add " +
                               server.address().toUtf8() +
                               " --user ana\n$vidora calendars test --json >$3\n$vidora calendars remove ana\n");
    QProcess process;
    const QString tested = folder.filePath(QStringLiteral("tested.json"));
    process.start(QStringLiteral("dbus-run-session"), {QStringLiteral("--"), QStringLiteral("sh"), script,
                                                       QStringLiteral(VIDORA_PROGRAM), home.path(), tested});
    const Ended ended = Home::end(process);
    ASSERT_EQ(ended.status, 0) << ended.errors.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(test::readRaw(tested))[QStringLiteral("accounts")][0][QStringLiteral("login")],
              QStringLiteral("basic"))
        << "the kept password was found";
    EXPECT_TRUE(filesWithPassword().isEmpty());
    EXPECT_FALSE(home.files().contains(home.path(QStringLiteral("documents/calendar-passwords.json"))));
}

TEST_F(CalendarCommands, WaitForNoBusThatKeepsSilent)
{
    QTemporaryDir folder;
    sockaddr_un place = {};
    place.sun_family = AF_UNIX;
    const QByteArray path = folder.filePath(QStringLiteral("bus")).toUtf8();
    ASSERT_LT(path.size(), qsizetype(sizeof place.sun_path));
    std::copy(path.begin(), path.end(), place.sun_path);
    const int silent = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_EQ(::bind(silent, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    ASSERT_EQ(::listen(silent, 10), 0);
    const Bus bus("unix:path=" + path);
    EXPECT_EQ(add(QByteArray(password) + "\n").status, 0);
    EXPECT_EQ(filesWithPassword(), QStringList{QStringLiteral("calendar-passwords.json")});
    ::close(silent);
}

} // namespace
} // namespace vidora::test
