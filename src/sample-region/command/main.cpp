#include "sample-region/Catalogue.h"
#include "sample-region/RegionChannel.h"
#include "sample-region/RegionServer.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>

#include <csignal>
#include <cstdio>
#include <exception>
#include <optional>
#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace {

using namespace vidora;

constexpr int usageError = 2, failure = 1;

struct Usage : std::exception
{
    explicit Usage(const QString& text)
        : message(text)
    {
    }
    QString message;
};

struct Options
{
    region::RegionServer::Options server;
    std::optional<Instant> clock;
    QString endpointsFile, catalogueFolder;
    bool withParent = false;
};

QString help(const QCommandLineParser& parser)
{
    return parser.helpText() +
           QStringLiteral("\nKinds of fault (a pattern is of \"PROVIDER/path?query\", with * for any text):\n") +
           QString::fromStdString(region::Fault::kindsHelp()) +
           QStringLiteral("\nExample: --fault 'n/epg.xml=status:503' --fault 'joj/*day=2*=cut'\n");
}

std::uint64_t number(const QCommandLineParser& parser, const QString& option, std::uint64_t most)
{
    bool ok = false;
    const std::uint64_t value = parser.value(option).toULongLong(&ok);
    if (!ok || value > most)
        throw Usage(
            QStringLiteral("--%1: not a number from 0 to %2: %3").arg(option).arg(most).arg(parser.value(option)));
    return value;
}

region::Faults faults(const QStringList& texts)
{
    region::Faults read;
    for (const QString& text : texts) {
        const auto fault = region::Fault::fromText(text.toStdString());
        if (!fault)
            throw Usage(QStringLiteral("--fault: not PATTERN=KIND[:ARGUMENT]: %1").arg(text));
        read.push_back(*fault);
    }
    return read;
}

region::Changes changes(const QStringList& texts)
{
    region::Changes read;
    for (const QString& text : texts) {
        const auto change = region::Change::fromText(text.toStdString());
        if (!change)
            throw Usage(QStringLiteral("--change: not TITLE=KIND[:ARGUMENT]: %1").arg(text));
        read.push_back(*change);
    }
    return read;
}

/// Reads the arguments; nothing where only help was asked for.
std::optional<Options> options(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Serves a made-up television region on the loopback, for the present day, in every form that providers have.\n"
        "The first line on standard output is the endpoint configuration that leads to it.\n"
        "The address 127.0.0.1:26418, which stands in the catalogue, is served too where it is free."));
    const QString port = QStringLiteral("port"), seed = QStringLiteral("seed"), clock = QStringLiteral("clock"),
                  fault = QStringLiteral("fault"), change = QStringLiteral("change"),
                  endpoints = QStringLiteral("endpoints-file"), parent = QStringLiteral("with-parent"),
                  catalogue = QStringLiteral("write-catalogue"), helpName = QStringLiteral("help");
    constexpr std::uint64_t mostPort = 65'000;
    parser.addOption({{QStringLiteral("h"), helpName}, QStringLiteral("This text.")});
    parser.addOption({port, QStringLiteral("Port of the first provider, the others follow; 0 takes free ones."),
                      QStringLiteral("N"), QStringLiteral("0")});
    parser.addOption(
        {seed, QStringLiteral("Another number makes another schedule."), QStringLiteral("N"), QStringLiteral("1")});
    parser.addOption({clock, QStringLiteral("The moment to serve, as 2026-11-22T19:00:00Z, instead of the present."),
                      QStringLiteral("TIME")});
    parser.addOption({fault, QStringLiteral("A defect in some answers; may be given more than once."),
                      QStringLiteral("PATTERN=KIND")});
    parser.addOption({change,
                      QStringLiteral("What becomes of the broadcasts of a title: move:MINUTES, drop, rename:TITLE, "
                                     "twice; may be given more than once."),
                      QStringLiteral("TITLE=KIND")});
    parser.addOption(
        {endpoints, QStringLiteral("Writes the endpoint configuration there, too."), QStringLiteral("FILE")});
    parser.addOption(
        {parent, QStringLiteral("Ends when standard input ends. Takes the same ports each time where they are free.")});
    parser.addOption({catalogue, QStringLiteral("Writes Data.plist and the icons into a folder, and serves nothing."),
                      QStringLiteral("FOLDER")});
    if (!parser.parse(arguments))
        throw Usage(parser.errorText());
    if (parser.isSet(helpName)) {
        std::fputs(qPrintable(help(parser)), stdout);
        return std::nullopt;
    }
    if (!parser.positionalArguments().isEmpty())
        throw Usage(QStringLiteral("unknown argument: %1").arg(parser.positionalArguments().front()));
    Options read;
    read.server.port = int(number(parser, port, mostPort));
    read.server.seed = number(parser, seed, UINT64_MAX);
    read.server.fixedAddress = true;
    read.server.faults = faults(parser.values(fault));
    read.server.changes = changes(parser.values(change));
    if (parser.isSet(clock) && !(read.clock = instantFromIsoText(parser.value(clock))))
        throw Usage(QStringLiteral("--clock: not a time like 2026-11-22T19:00:00Z: %1").arg(parser.value(clock)));
    read.endpointsFile = parser.value(endpoints);
    read.catalogueFolder = parser.value(catalogue);
    read.withParent = parser.isSet(parent);
    if (read.withParent && !parser.isSet(port)) {
        read.server.port = region::usualPort;
        read.server.fallsBack = true;
    }
    return read;
}

void writeEndpoints(const QString& path, const std::string& endpoints)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(endpoints.data(), qint64(endpoints.size())) < 0 ||
        !file.commit())
        throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
}

/// Blocks the signals that end the command, for this thread and those it starts. What they are read from.
int endingSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGHUP);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC);
}

void waitForEnd(int signals, bool withParent)
{
    pollfd waiting[] = {{signals, POLLIN, 0}, {withParent ? STDIN_FILENO : -1, POLLIN, 0}};
    for (;;) {
        if (poll(waiting, 2, -1) < 0 || waiting[0].revents != 0)
            return;
        char dropped[256];
        if (waiting[1].revents != 0 && read(STDIN_FILENO, dropped, sizeof dropped) <= 0)
            return;
    }
}

int serve(const Options& options)
{
    const int signals = endingSignals();
    const SystemClock systemClock;
    std::optional<FixedClock> fixedClock;
    if (options.clock)
        fixedClock.emplace(*options.clock);
    SystemSleeper sleeper;
    const region::RegionServer server(fixedClock ? static_cast<const Clock&>(*fixedClock) : systemClock, sleeper,
                                      options.server);
    if (!options.endpointsFile.isEmpty())
        writeEndpoints(options.endpointsFile, server.endpoints());
    std::puts(server.endpoints().c_str());
    std::fflush(stdout);
    waitForEnd(signals, options.withParent);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora-sample-region"));
    try {
        const auto read = options(QCoreApplication::arguments());
        if (!read)
            return 0;
        if (!read->catalogueFolder.isEmpty()) {
            if (!region::writeCatalogue(read->catalogueFolder.toStdString()))
                throw std::runtime_error("cannot write into " + read->catalogueFolder.toStdString());
            return 0;
        }
        return serve(*read);
    } catch (const Usage& usage) {
        std::fprintf(stderr, "vidora-sample-region: %s\nTry --help.\n", qPrintable(usage.message));
        return usageError;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "vidora-sample-region: %s\n", error.what());
        return failure;
    }
}
