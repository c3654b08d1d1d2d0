#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/Terminal.h"
#include "app/Translations.h"
#include "app/WindowProgram.h"
#include "platform/Localized.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    using namespace vidora;
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora"));
    const Translations translations = Translations::ofEnvironment();
    const auto [line, error] = readCommandLine(QCoreApplication::arguments().mid(1));
    if (error)
        return sayUsageError(*error, line.command);
    if (line.help) {
        printText(helpFor(line.command));
        return ExitStatus::done;
    }
    if (line.version) {
        printText(QStringLiteral("vidora " VIDORA_VERSION "\n"));
        return ExitStatus::done;
    }
    if (wantsWindow(line))
        becomeWindow(argv);
    if (line.selfTest || line.opensAddress()) {
        say(localized("There is no window here."));
        return ExitStatus::notDone;
    }
    return runCommand(line);
}
