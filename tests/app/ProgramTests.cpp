#include "Program.h"
#include "app/CommandLine.h"
#include "platform/HomeLock.h"
#include "platform/NetworkURLSession.h"
#include "support/SampleRegion.h"

#include <QJsonArray>
#include <QRegularExpression>

#include <algorithm>
#include <arpa/inet.h>
#include <csignal>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vidora {
namespace {

using test::Ended;
using test::Home;
using ::testing::AnyOf;
using ::testing::HasSubstr;

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

QStringList words(const char* line)
{
    return utf8(line).split(QLatin1Char('|'));
}

qsizetype countOf(const QString& text, const char* pattern)
{
    return text.count(QRegularExpression(utf8(pattern), QRegularExpression::MultilineOption));
}

TEST(Program, ShowsTheRegionAtFirstStartAndAnswersItsCommands)
{
    const Home home;
    const Ended first = home.run({});
    EXPECT_EQ(first.status, 0);
    EXPECT_THAT(first.errors.toStdString(), HasSubstr("12 of 12 channels updated"));
    EXPECT_EQ(countOf(first.output, "^\\S"), 12) << "a dozen channels";
    EXPECT_EQ(countOf(first.output, "^  \\d\\d:\\d\\d-\\d\\d:\\d\\d  \\S"), 12 * 4);

    EXPECT_EQ(home.run(words("now")).output, first.output);
    EXPECT_EQ(home.run(words("now|--json")).json()[QLatin1String("channels")].toArray().size(), 12);
    EXPECT_EQ(countOf(home.run(words("channels")).output, "^\\* "), 12);

    Home::write(home.path(utf8("settings/settings.json")), R"({"currently_show_count": "2"})");
    EXPECT_EQ(countOf(home.run(words("now")).output, "^  \\d\\d:\\d\\d-"), 12 * 2);

    const QString oneChannel = home.run(words("channel|bura 1")).output;
    EXPECT_GT(countOf(oneChannel, "^\\S.* 2026$"), 5) << "headings of days";
    EXPECT_TRUE(oneChannel.startsWith(utf8("Sunday, 22 November 2026\n")));
    EXPECT_TRUE(home.run(words("channel|bura 1|--clock=2026-11-24T12:00:00Z"))
                    .output.startsWith(utf8("Tuesday, 24 November 2026\n")));
    const QJsonArray films = home.run(words("category|films|--json")).json()[QLatin1String("shows")].toArray();
    ASSERT_FALSE(films.isEmpty());
    EXPECT_TRUE(films[0].toObject().contains(QLatin1String("channelTitle")));
    const QString found = home.run(words("search|ODVJETNICA BARIC")).output;
    EXPECT_GT(countOf(found, "^  Bura 1 .*Odvjetnica Barić"), 0) << found.toStdString();
    EXPECT_EQ(home.run(words("search|no such show")).status, 0);

    EXPECT_EQ(home.run(words("unselect|Behar|Bistrica")).status, 0);
    EXPECT_EQ(home.run(words("select|vihor film")).status, 0);
    const QString marked = home.run(words("channels")).output;
    EXPECT_EQ(countOf(marked, "^\\* "), 11);
    EXPECT_EQ(countOf(marked, "^\\* Vihor Film$"), 1);
    const QJsonObject updated = home.run(words("update|--json")).json();
    EXPECT_EQ(updated[QLatin1String("channels")].toInt(), 1);
    EXPECT_EQ(updated[QLatin1String("failed")].toArray(), QJsonArray());
}

QString titleOf(const QJsonValue& show, const char* key)
{
    return show.toObject()[QLatin1String(key)].toString();
}

/// With the Cyrillic letters that look like the Latin ones which a conversion leaves.
QString withKeyboardLetters(QString shown)
{
    for (const auto& [latin, cyrillic] : {std::pair(u'a', u'а'),
                                          {u'e', u'е'},
                                          {u'o', u'о'},
                                          {u'j', u'ј'},
                                          {u'A', u'А'},
                                          {u'E', u'Е'},
                                          {u'O', u'О'},
                                          {u'J', u'Ј'},
                                          {u'M', u'М'}})
        shown.replace(QChar(latin), QChar(cyrillic));
    return shown;
}

TEST(Program, TakesAndShowsTitlesInTheAlphabetOfTheReader)
{
    Home home;
    home.language = utf8("sr_RS.UTF-8");
    // Typed on a keyboard of either alphabet. What is shown has Latin letters where both alphabets share them.
    EXPECT_EQ(home.run(words("select|Бехар|bistrica|ЗАВИЧАЈ дом")).status, 0);
    EXPECT_EQ(home.run(words("update")).status, 0);
    const QString now = home.run(words("now")).output;
    EXPECT_EQ(countOf(now, "^(Бeхaр|Бистрицa|Зaвичaj Дoм)$"), 3) << now.toStdString();
    const QString marked = home.run(words("channels")).output;
    EXPECT_EQ(countOf(marked, "^\\* (Бeхaр|Бистрицa|Зaвичaj Дoм)$"), 3) << marked.toStdString();

    for (const char* name : {"Behar", "Бехар", "Бeхaр"}) {
        const QString shown = home.run({utf8("channel"), utf8(name)}).output;
        EXPECT_GT(countOf(shown, "^  \\d\\d:\\d\\d-"), 4) << name;
    }
    // A show of Behar's, named as its provider spells it, as it is shown, and as a keyboard has it.
    const QJsonArray shows = home.run(words("channel|Behar|--json")).json()[QLatin1String("shows")].toArray();
    const QString raw = titleOf(shows.last(), "identificator"), shown = titleOf(shows.last(), "title");
    EXPECT_NE(raw, shown);
    for (const QString& title : {raw, shown, withKeyboardLetters(shown)}) {
        const QString found = home.run({utf8("search"), title}).output;
        EXPECT_TRUE(found.contains(utf8("Бeхaр ")) && found.contains(shown)) << found.toStdString();
        EXPECT_FALSE(found.contains(utf8("Behar")));
        const Ended followed = home.run({utf8("favourite"), title});
        EXPECT_TRUE(followed.output.contains(shown)) << followed.errors.toStdString();
        EXPECT_EQ(home.run(words("favourites")).output, shown + QLatin1Char('\n'));
        EXPECT_EQ(home.run({utf8("unfavourite"), title}).status, 0) << title.toStdString();
    }
    EXPECT_EQ(home.run(words("unselect|zavicaj dom|бистрица")).status, 0);
    EXPECT_EQ(countOf(home.run(words("channels")).output, "^\\* "), 1);
}

TEST(Program, AsksTheAddressesThatTheUserSetByHand)
{
    const Home home;
    // Nobody answers there, and a refusal comes at once.
    Home::write(home.path(utf8("settings/endpoints.json")), R"({"weekly": {"host": "http://127.0.0.1:9"}})");
    const Ended first = home.run(words("--log"));
    EXPECT_THAT(first.errors.toStdString(), HasSubstr("http://127.0.0.1:9/"));
    EXPECT_GT(countOf(first.errors, "status 200"), 0) << "the other providers stay as they are";
}

TEST(Program, NamesTheCandidatesForAnUnclearName)
{
    const Home home;
    struct Case
    {
        const char *line, *errors;
        int status;
    };
    for (const Case& c : {Case{"channel|lipa", "Lipa 1, Lipa 2, Lipa Plus", 1}, Case{"select|Vihor|x y z", "Behar", 1},
                          Case{"unselect|vihor se|lipa", "Lipa Plus", 1}, Case{"category|no such", "There are:", 1},
                          Case{"nonsense", "\"vidora --help\" tells how.", 2},
                          Case{"now|later", "\"vidora now --help\" tells how.", 2}}) {
        const Ended run = home.run(words(c.line));
        EXPECT_EQ(run.status, c.status) << c.line;
        EXPECT_THAT(run.errors.toStdString(), HasSubstr(c.errors)) << c.line;
    }
    EXPECT_EQ(countOf(home.run(words("channels")).output, "^\\* "), 0) << "an unclear name changes nothing";
}

TEST(Program, SaysWhatItCannotKeepOrRead)
{
    const Home home;
    const QString occupied = home.file(utf8("file"), "no folder");
    for (const char* command : {"select|golya", "import|guide.xml"}) {
        const Ended refused = home.run(words(command) + QStringList{utf8("--home"), occupied});
        EXPECT_EQ(refused.status, 1) << command;
        EXPECT_THAT(refused.errors.toStdString(), HasSubstr("can't be written")) << command;
    }
    Home::write(home.path(utf8("documents/Data.plist")), "garbage");
    EXPECT_THAT(home.run(words("now")).errors.toStdString(), HasSubstr("import the guide again"));
}

QByteArray fetched(const std::string& address)
{
    NetworkURLSession session;
    return session.perform(URLRequest(URL::fromText(QString::fromStdString(address)).value())).data.value();
}

TEST(Program, ImportsAGuideFromAFileOrAnAddress)
{
    test::SampleRegion region;
    const std::string plain = region.server.origin("tvpc") + "/guide/tvpc.xml";
    const Home files;
    for (const QString& source :
         {QString::fromStdString(plain), files.file(utf8("guide.xml"), fetched(plain)),
          files.file(utf8("guide.gz"), fetched(region.server.origin("s") + "/losmij/epg.xml.gz")),
          files.file(utf8("guide of mine"), fetched(region.server.origin("r.0") + "/rytecRS1.xz"))}) {
        const Home home;
        const Ended imported = home.run({utf8("import"), source, utf8("--json")});
        ASSERT_EQ(imported.status, 0) << imported.errors.toStdString();
        const QJsonArray channels = home.run(words("channels|--json")).json()[QLatin1String("channels")].toArray();
        EXPECT_EQ(channels.size(), imported.json()[QLatin1String("channels")].toInt());
        const QString id = channels.at(0).toObject()[QLatin1String("channel")].toString();
        EXPECT_EQ(home.run({utf8("select"), id}).status, 0);
        const Ended updated = home.run(words("update|--log"));
        EXPECT_THAT(updated.errors.toStdString(), HasSubstr("1 of 1 channels updated"));
        const QString address = imported.json()[QLatin1String("address")].toString();
        EXPECT_EQ(updated.errors.count(utf8("\npage ")), 1);
        EXPECT_EQ(updated.errors.count(utf8("\npage ") + address), 1) << "nothing of the region is used";

        const Ended again = home.run({utf8("import"), source, utf8("--json")});
        EXPECT_EQ(again.json()[QLatin1String("stillSelected")].toInt(), 1);
        EXPECT_EQ(countOf(home.run(words("now")).output, "^  \\d\\d:\\d\\d-"), 4) << "the old list stays in sight";
        EXPECT_THAT(home.run(words("update")).errors.toStdString(), HasSubstr("1 of 1 channels updated"));
    }
}

// Two shows, so that the channel has too few ahead and is read at every update.
QByteArray shortGuide(const char* title)
{
    return QByteArray("<tv><channel id='one'><display-name>One</display-name></channel>"
                      "<programme channel='one' start='20261122190000 +0000' stop='20261122200000 +0000'><title>") +
           title +
           "</title></programme>"
           "<programme channel='one' start='20261122200000 +0000' stop='20261122210000 +0000'><title>Late</title>"
           "</programme></tv>";
}

TEST(Program, ReadsAFileOfTheUsersAtEachUpdate)
{
    const Home home;
    const QString guide = home.file(utf8("guide.xml"), shortGuide("Early"));
    home.run({utf8("import"), guide});
    home.run(words("select|one"));
    for (const char* title : {"Early", "Changed"}) {
        Home::write(guide, shortGuide(title));
        EXPECT_EQ(home.run(words("update")).status, 0);
        EXPECT_THAT(home.run(words("now")).output.toStdString(), HasSubstr(title));
    }
}

TEST(Program, AFailedImportLeavesEverythingAsItWas)
{
    test::SampleRegion region;
    const std::string origin = region.server.origin("n");
    const Home home;
    home.run({utf8("import"), home.file(utf8("guide.xml"), shortGuide("Early"))});
    home.run(words("select|one"));
    home.run(words("update"));
    const auto before = home.files();
    for (const QString& source :
         {home.file(utf8("page"), "<html><body>no guide</body></html>"), home.file(utf8("empty"), ""),
          home.file(utf8("none"), "<tv></tv>"),
          home.file(utf8("cut.xz"), QByteArray("\xfd"
                                               "7zXZ\0",
                                               6)),
          home.path(utf8("missing")), home.path(), QString::fromStdString(origin + "/nothing-here"),
          utf8("http://127.0.0.1:1/guide.xml"), utf8("ftp://127.0.0.1/guide.xml")}) {
        const Ended run = home.run({utf8("import"), source});
        EXPECT_EQ(run.status, 1) << source.toStdString();
        EXPECT_EQ(run.errors.count(QLatin1Char('\n')), 1) << run.errors.toStdString();
    }
    EXPECT_EQ(home.files(), before);
}

/// An address on this machine that takes connections and never answers.
class SilentHost
{
public:
    SilentHost()
    {
        m_address.sin_family = AF_INET;
        m_address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        auto* address = reinterpret_cast<sockaddr*>(&m_address);
        socklen_t size = sizeof m_address;
        EXPECT_EQ(::bind(m_socket, address, size), 0);
        EXPECT_EQ(::listen(m_socket, 10), 0);
        EXPECT_EQ(::getsockname(m_socket, address, &size), 0);
    }
    ~SilentHost() { ::close(m_socket); }

    QByteArray address() const { return "http://127.0.0.1:" + QByteArray::number(ntohs(m_address.sin_port)); }

private:
    const int m_socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in m_address = {};
};

TEST(Program, HasAGuideAheadOfItsIcons)
{
    const SilentHost host;
    const Home home;
    const QByteArray icon = "</display-name><icon src='" + host.address() + "/one.png'/>";
    const QString guide = home.file(utf8("guide.xml"), shortGuide("Early").replace("</display-name>", icon));
    QProcess process;
    home.start(process, {utf8("import"), guide});
    ASSERT_TRUE(process.waitForReadyRead(Home::patience)) << "what was imported is told at once";
    process.kill();
    Home::end(process);
    EXPECT_EQ(home.run(words("channels|--json")).json()[QLatin1String("channels")].toArray().size(), 1);
    const auto icons = home.files();
    const auto drawn = std::find_if(icons.begin(), icons.end(),
                                    [](const auto& file) { return file.first.endsWith(QLatin1String(".icon")); });
    ASSERT_NE(drawn, icons.end());
    EXPECT_TRUE(drawn->second.startsWith("<svg"));

    home.start(process, {utf8("import"), guide});
    ASSERT_TRUE(process.waitForReadyRead(Home::patience));
    process.terminate();
    EXPECT_EQ(Home::end(process).status, 128 + SIGTERM);
    const QJsonObject again = home.run({utf8("import"), guide, utf8("--json")}).json();
    EXPECT_EQ(again[QLatin1String("iconsDrawn")].toInt(), 1);
    EXPECT_EQ(again[QLatin1String("iconsWaiting")].toInt(), 0) << "asked for, and not again today";
}

TEST(Program, SharesItsHomeWithAnotherProcess)
{
    const Home home;
    home.run({utf8("import"), home.file(utf8("guide.xml"), shortGuide("Early"))});
    home.run(words("select|one"));
    home.run(words("update"));
    auto lock = std::make_unique<HomeLock>(home.path(utf8("documents")));
    ASSERT_EQ(lock->outcome(), HomeLock::Outcome::First);
    const Ended reader = home.run(words("now"));
    EXPECT_THAT(reader.errors.toStdString(), HasSubstr("Another vidora"));
    EXPECT_THAT(reader.output.toStdString(), HasSubstr("Early"));
    for (const char* command : {"alerts", "favourites", "silent-hours", "calendars"})
        EXPECT_EQ(home.run(words(command)).status, 0) << command;

    QProcess writer;
    home.start(writer, words("unselect|one"));
    EXPECT_FALSE(Home::waitForError(writer, utf8("waiting for it")).isEmpty());
    EXPECT_EQ(writer.state(), QProcess::Running);
    lock.reset();
    EXPECT_EQ(Home::end(writer).status, 0);
    EXPECT_EQ(countOf(home.run(words("channels")).output, "^\\* "), 0);
}

/// A region whose feed "n" keeps everyone waiting, and a home that uses it.
class SlowRegion
{
public:
    explicit SlowRegion(const Home& home)
    {
        Home::write(home.path(utf8("settings/endpoints.json")), "{}");
        m_process.start(utf8(VIDORA_REGION_PROGRAM),
                        {utf8("--with-parent"), utf8("--clock"), utf8("2026-11-22T19:00:00Z"), utf8("--fault"),
                         utf8("n/*=delay:600000"), utf8("--endpoints-file"),
                         home.path(utf8("settings/endpoints.json"))});
        m_process.waitForReadyRead(Home::patience);
        home.run(words("select|Bistrica|Faro 5|Golya|Lipa 1"));
    }
    ~SlowRegion()
    {
        m_process.kill();
        m_process.waitForFinished(Home::patience);
    }

private:
    QProcess m_process;
};

QStringList listFiles(const Home& home)
{
    QStringList names = QDir(home.path(utf8("caches"))).entryList({utf8("*.plist*")}, QDir::Files);
    names.removeAll(utf8("5b65e9d23afbe36684bdfe2c.plist")); // the catalogue
    return names;
}

TEST(Program, EndsAnUpdateWhenAsked)
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const Home home;
        const SlowRegion region(home);
        QProcess process;
        home.start(process, words("update|--log"));
        EXPECT_FALSE(Home::waitForError(process, utf8("source 10101")).isEmpty());
        ::kill(static_cast<pid_t>(process.processId()), signal);
        const Ended run = Home::end(process);
        EXPECT_EQ(run.status, 128 + signal);
        EXPECT_THAT(run.errors.toStdString(), HasSubstr("Nothing came for: Lipa 1"));
        EXPECT_EQ(listFiles(home).size(), 3) << "what had come is kept";
        EXPECT_EQ(countOf(home.run(words("now")).output, "^  \\d\\d:\\d\\d-"), 3 * 4);
    }
}

TEST(Program, LeavesWholeFilesWhereverItIsKilled)
{
    const Home home;
    const SlowRegion region(home);
    for (const char* line : {"channelID", "page ", "source bistrica", "source _C5", "source 10101"}) {
        QProcess process;
        home.start(process, words("update|--log"));
        EXPECT_FALSE(Home::waitForError(process, utf8(line)).isEmpty()) << line;
        process.kill();
        Home::end(process);
        Home::write(home.path(utf8("caches/x.plist.partial-1")), "half");
        const Ended run = home.run(words("now|--log"));
        EXPECT_EQ(run.status, 0) << line;
        EXPECT_EQ(run.errors.count(utf8("no readable list")), 0) << line;
        EXPECT_EQ(countOf(home.run(words("channels")).output, "^\\* "), 4) << line;
        EXPECT_FALSE(listFiles(home).contains(utf8("x.plist.partial-1"))) << "leftovers go";
    }
}

TEST(Readme, ShowsCommandsThatExist)
{
    QFile readme(utf8(VIDORA_README));
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    const QRegularExpression shown(utf8("^ *\\$ \\./run(.*)$"), QRegularExpression::MultilineOption);
    QStringList names;
    auto matches = shown.globalMatch(QString::fromUtf8(readme.readAll()));
    while (matches.hasNext()) {
        const QString line = matches.next().captured(1);
        const auto [command, error] = readCommandLine(QProcess::splitCommand(line));
        EXPECT_FALSE(error) << line.toStdString();
        names << command.command;
    }
    for (const char* name : {"", "now", "channel", "category", "search", "channels", "select", "update", "import"})
        EXPECT_TRUE(names.contains(utf8(name))) << name << " has no example";
}

} // namespace
} // namespace vidora
