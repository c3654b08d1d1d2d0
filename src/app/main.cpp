#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/Translations.h"
#include "app/WindowProgram.h"
#include "platform/Localized.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora"));
    const vidora::Translations translations = vidora::Translations::ofEnvironment();
    const vidora::CommandLineResult read = vidora::readCommandLine(QCoreApplication::arguments().mid(1));
    if (read.error) {
        std::fprintf(stderr, "%s\n\n%s", qUtf8Printable(*read.error), qUtf8Printable(vidora::commandLineHelp()));
        return 2;
    }
    if (read.line.help) {
        std::fputs(qUtf8Printable(vidora::commandLineHelp()), stdout);
        return 0;
    }
    if (read.line.version) {
        std::puts("vidora " VIDORA_VERSION);
        return 0;
    }
    if (vidora::wantsWindow(read.line))
        vidora::becomeWindow(argv);
    if (read.line.selfTest || read.line.opensAddress()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(vidora::localized("There is no window here.")));
        return 1;
    }
    return vidora::runCommand(read.line);
}
