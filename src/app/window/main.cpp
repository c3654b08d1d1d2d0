#include "app/CommandLine.h"
#include "app/Commands.h"
#include "app/Terminal.h"
#include "app/Translations.h"
#include "app/WindowProgram.h"
#include "app/window/StreamMediaPlayer.h"
#include "app/window/Window.h"
#include "platform/Localized.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

/// What needs no window, or can have none: the toolkit would end the process where there is no display.
std::optional<int> answerWithoutDisplay(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const vidora::Translations translations = vidora::Translations::ofEnvironment();
    const vidora::CommandLineResult read = vidora::readCommandLine(QCoreApplication::arguments().mid(1));
    if (read.error)
        return vidora::sayUsageError(*read.error, read.line.command);
    if (read.line.help) {
        vidora::printText(vidora::helpFor(read.line.command));
        return vidora::ExitStatus::done;
    }
    if (!read.line.selfTest && !vidora::wantsWindow(read.line)) {
        vidora::say(vidora::localized("There is no window here."));
        return vidora::ExitStatus::notDone;
    }
    return std::nullopt;
}

} // namespace

int main(int argc, char** argv)
{
    const bool isSelfTest = std::any_of(argv + 1, argv + argc,
                                        [](const char* argument) { return std::strcmp(argument, "--self-test") == 0; });
    if (isSelfTest) // nothing is shown, so no display is needed
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (const auto status = answerWithoutDisplay(argc, argv))
        return *status;
    vidora::StreamMediaPlayer::chooseBackend();
    QGuiApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vidora"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tv.ostrel.vidora"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Vidora"));
    const vidora::Translations translations = vidora::Translations::ofEnvironment();
    const vidora::CommandLineResult read = vidora::readCommandLine(QCoreApplication::arguments().mid(1));
    return read.line.selfTest ? vidora::testWindow() : vidora::runWindow(read.line);
}
