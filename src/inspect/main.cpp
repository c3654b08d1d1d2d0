#include "inspect/Arguments.h"
#include "inspect/Inspector.h"
#include "platform/AtomicFile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstdio>
#include <iostream>
#include <string>

namespace vidora::inspect {

namespace {

constexpr qint64 largestEndpoints = 1024 * 1024;

QString resources()
{
    const QString installed = QCoreApplication::applicationDirPath() + QLatin1String("/../share/vidora");
    return QFileInfo::exists(installed) ? installed : QStringLiteral(VIDORA_RESOURCES);
}

Endpoints endpointsOf(const Arguments& arguments)
{
    const auto own = AtomicFile::read(resources() + QLatin1String("/endpoints.json"), largestEndpoints);
    const Endpoints fallback = Endpoints::fromJson(own.value_or(QByteArray()), {});
    if (!arguments.endpointsFile)
        return fallback;
    const auto given = AtomicFile::read(*arguments.endpointsFile, largestEndpoints);
    if (!given)
        throw UnusableRequest(QStringLiteral("%1 can't be read").arg(*arguments.endpointsFile));
    return Endpoints::fromJson(*given, fallback);
}

void print(const QJsonObject& object)
{
    const QByteArray line = QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stdout);
    std::fflush(stdout);
}

QJsonObject answerLine(const std::string& line, const Surroundings& surroundings)
{
    try {
        QByteArray json = QByteArray::fromStdString(line);
        // The library drops a U+FEFF at the front of a string, where it is a character like any other.
        json.replace("\"\xEF\xBB\xBF", "\"\\ufeff");
        const QJsonDocument document = QJsonDocument::fromJson(json);
        if (!document.isObject())
            throw UnusableRequest(QStringLiteral("the line is no JSON object"));
        return answer(Request(document.object()), surroundings);
    } catch (const UnusableRequest& unusable) {
        return {{QStringLiteral("error"), QString::fromUtf8(unusable.what())}};
    }
}

void answerBatch(const Surroundings& surroundings)
{
    std::ios::sync_with_stdio(false);
    for (std::string line; std::getline(std::cin, line);)
        print(answerLine(line, surroundings));
}

void printHelp()
{
    QStringList names = allCommands().keys();
    names.sort();
    std::fputs("Usage: vidora-inspect [--clock TIME] [--endpoints FILE] [--icons DIR] COMMAND [--FIELD VALUE]...\n"
               "       vidora-inspect [--clock TIME] [--endpoints FILE] [--icons DIR] --batch\n\nCommands:\n",
               stdout);
    for (const QString& name : names)
        std::printf("  %s\n", qUtf8Printable(name));
    std::puts("\nvidora-inspect(1) tells their fields.");
}

int run(const QStringList& commandLine)
{
    try {
        const Arguments arguments = readArguments(commandLine);
        if (arguments.help) {
            printHelp();
            return 0;
        }
        const std::unique_ptr<Clock> clock =
            arguments.clock ? std::unique_ptr<Clock>(std::make_unique<FixedClock>(*arguments.clock))
                            : std::make_unique<SystemClock>();
        const Surroundings surroundings{*clock, endpointsOf(arguments),
                                        arguments.iconFolder.value_or(resources() + QLatin1String("/icons"))};
        if (arguments.batch)
            answerBatch(surroundings);
        else
            print(answer(Request(arguments.request), surroundings));
        return 0;
    } catch (const UnusableRequest& unusable) {
        std::fprintf(stderr, "vidora-inspect: %s\n", unusable.what());
        return 2;
    }
}

} // namespace

} // namespace vidora::inspect

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    return vidora::inspect::run(QCoreApplication::arguments().mid(1));
}
