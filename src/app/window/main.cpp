#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/Translations.h"
#include "app/window/StreamMediaPlayer.h"
#include "app/window/Window.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstring>

int main(int argc, char** argv)
{
    const bool isSelfTest = std::any_of(argv + 1, argv + argc,
                                        [](const char* argument) { return std::strcmp(argument, "--self-test") == 0; });
    if (isSelfTest) // nothing is shown, so no display is needed
        qputenv("QT_QPA_PLATFORM", "offscreen");
    vidora::StreamMediaPlayer::chooseBackend();
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tv.ostrel.vidora"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vidora"));
    const vidora::Translations translations = vidora::Translations::ofEnvironment();
    const vidora::CommandLineResult read = vidora::readCommandLine(QCoreApplication::arguments().mid(1));
    if (read.error)
        return vidora::sayUsageError(*read.error, read.line.command);
    return read.line.selfTest ? vidora::testWindow() : vidora::runWindow(read.line);
}
