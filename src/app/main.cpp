#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/WindowProgram.h"

#include <QCoreApplication>
#include <QLocale>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora"));
    const vidora::CommandLineResult read = vidora::readCommandLine(QCoreApplication::arguments().mid(1));
    if (read.error) {
        std::fprintf(stderr, "%s\n\n%s", qUtf8Printable(*read.error), qUtf8Printable(vidora::commandLineHelp()));
        return 2;
    }
    if (read.line.help) {
        std::fputs(qUtf8Printable(vidora::commandLineHelp()), stdout);
        return 0;
    }
    if (vidora::wantsWindow(read.line))
        vidora::becomeWindow(argv);
    if (read.line.selfTest || read.line.opensAddress()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(QCoreApplication::translate("vidora", "There is no window here.")));
        return 1;
    }
    return vidora::runCommand(read.line);
}
