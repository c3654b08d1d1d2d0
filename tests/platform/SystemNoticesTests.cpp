#include "platform/DispatchQueue.h"
#include "platform/MemoryWarnings.h"
#include "platform/Signals.h"
#include "platform/SignificantTimeChange.h"

#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>

namespace vidora {
namespace {

using ::testing::ElementsAre;
using namespace std::chrono_literals;

// What was written to the first end can be read from the second.
std::pair<Descriptor, Descriptor> connectedPair()
{
    int ends[2] = {-1, -1};
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    return {Descriptor(ends[0]), Descriptor(ends[1])};
}

void runMainFor(int turns)
{
    for (int i = 0; i < turns; ++i) {
        bool isBehind = false;
        DispatchQueue::main().async([&] { isBehind = true; });
        DispatchQueue::runMain([&] { return isBehind; });
    }
}

void write(const QString& name, const QByteArray& text)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

TEST(SignalsTest, EachSignalReachesTheHandlerAndTheOldBehaviourComesBack)
{
    struct sigaction before = {};
    ::sigaction(SIGUSR1, nullptr, &before);
    {
        std::vector<int> seen;
        const Signals signals([&](int signal) { seen.push_back(signal); }, {SIGHUP, SIGTERM, SIGUSR1});
        for (const int signal : {SIGHUP, SIGTERM, SIGHUP, SIGUSR1})
            ::raise(signal);
        DispatchQueue::runMain([&] { return seen.size() == 4; });
        EXPECT_THAT(seen, ElementsAre(SIGHUP, SIGTERM, SIGHUP, SIGUSR1));
    }
    struct sigaction after = {};
    ::sigaction(SIGUSR1, nullptr, &after);
    EXPECT_EQ(before.sa_handler, after.sa_handler);
}

TEST(MemoryWarningsTest, WarnsOnceInAWhileHoweverLongTheShortageLasts)
{
    auto [kernel, trigger] = connectedPair();
    FixedClock clock(instantFromUnixMilliseconds(1'000'000'000));
    int warnings = 0;
    const MemoryWarnings memory([&] { ++warnings; }, clock, std::move(trigger));
    runMainFor(3);
    EXPECT_EQ(warnings, 0);

    // Urgent data is to a socket what the kernel's notice is to a pressure file; it stays until it is read.
    ASSERT_EQ(::send(kernel.number(), "!", 1, MSG_OOB), 1);
    DispatchQueue::runMain([&] { return warnings == 1; });
    clock.advance(29s);
    runMainFor(3);
    EXPECT_EQ(warnings, 1);
    clock.advance(1s);
    DispatchQueue::runMain([&] { return warnings == 2; });
    clock.advance(-1h);
    DispatchQueue::runMain([&] { return warnings == 3; });
}

TEST(MemoryWarningsTest, SetsTheTriggerInTheFirstFileThatTakesIt)
{
    const QTemporaryDir folder;
    const QString absent = folder.filePath(QStringLiteral("absent"));
    const QString present = folder.filePath(QStringLiteral("memory.pressure"));
    write(present, {});
    // A full disk stands for a file that may be opened and refuses the trigger.
    EXPECT_TRUE(MemoryWarnings::openTrigger({absent, QStringLiteral("/dev/full"), present}));
    QFile file(present);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), QByteArray("some 200000 2000000\0", 20));

    EXPECT_FALSE(MemoryWarnings::openTrigger({absent}));
    const SystemClock clock;
    const MemoryWarnings quiet([] { ADD_FAILURE(); }, clock, Descriptor());
    runMainFor(2);
}

TEST(SignificantTimeChangeTest, NextMidnightFollowsTheZone)
{
    const struct
    {
        const char* zone;
        const char* now;
        const char* midnight;
    } cases[] = {
        {"Europe/Belgrade", "2026-11-22T22:59:59.999Z", "2026-11-22T23:00:00Z"},
        {"Europe/Belgrade", "2026-11-22T23:00:00Z", "2026-11-23T23:00:00Z"},
        {"Europe/Belgrade", "2026-10-25T00:00:00Z", "2026-10-25T23:00:00Z"}, // A day of 25 hours.
        {"America/St_Johns", "2026-01-01T03:29:00Z", "2026-01-01T03:30:00Z"},
        {"America/Sao_Paulo", "2018-11-03T12:00:00Z", "2018-11-04T03:00:00Z"}, // That midnight did not exist.
        {"Pacific/Apia", "2011-12-29T12:00:00Z", "2011-12-30T10:00:00Z"},      // That whole day did not.
    };
    for (const auto& [zone, now, midnight] : cases) {
        const auto found =
            SignificantTimeChange::nextMidnight(*instantFromIsoText(QString::fromLatin1(now)), QTimeZone(zone));
        EXPECT_EQ(isoText(found).toStdString(), midnight) << zone << " at " << now;
    }
}

TEST(SignificantTimeChangeTest, TellsOfTheTimerAndOfAReplacedZoneFileAlone)
{
    const QTemporaryDir folder;
    auto [kernel, timer] = connectedPair();
    int changes = 0;
    int zoneReadings = 0;
    const auto zone = [&] {
        ++zoneReadings;
        return QTimeZone::utc();
    };
    const SignificantTimeChange change([&] { ++changes; },
                                       {std::move(timer), folder.filePath(QStringLiteral("localtime")), zone});
    EXPECT_EQ(zoneReadings, 1);

    const std::uint64_t once = 1;
    ASSERT_EQ(::write(kernel.number(), &once, sizeof once), ssize_t(sizeof once));
    DispatchQueue::runMain([&] { return changes == 1; });

    write(folder.filePath(QStringLiteral("hostname")), "other");
    runMainFor(3);
    EXPECT_EQ(changes, 1);
    write(folder.filePath(QStringLiteral("new")), "TZif");
    ASSERT_TRUE(QFile::rename(folder.filePath(QStringLiteral("new")), folder.filePath(QStringLiteral("localtime"))));
    DispatchQueue::runMain([&] { return changes == 2; });
    EXPECT_EQ(zoneReadings, 3); // The next midnight is looked for anew each time.
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("localtime"))));
    ASSERT_TRUE(QFile::link(QStringLiteral("/elsewhere"), folder.filePath(QStringLiteral("localtime"))));
    DispatchQueue::runMain([&] { return changes == 3; });
}

TEST(SignificantTimeChangeTest, TheMachinesTimerTakesAMidnight)
{
    const SignificantTimeChange::Sources sources = SignificantTimeChange::Sources::ofMachine();
    EXPECT_TRUE(sources.timer);
    EXPECT_TRUE(sources.zone().isValid());
    const SignificantTimeChange change([] {});
    runMainFor(1);
}

} // namespace
} // namespace vidora
