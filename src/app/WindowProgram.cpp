#include "app/WindowProgram.h"

#include "platform/Log.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace vidora {

namespace {

/// A display named in the environment may be gone; the toolkit would end the program then.
bool isThere(const QString& socket)
{
    return QFileInfo::exists(socket);
}

bool hasX11Display()
{
    const QString display = qEnvironmentVariable("DISPLAY");
    if (!display.startsWith(QLatin1Char(':')))
        return !display.isEmpty(); // on another machine, which only the toolkit can ask
    const QString number = display.mid(1).section(QLatin1Char('.'), 0, 0);
    return isThere(QLatin1String("/tmp/.X11-unix/X") + number);
}

bool hasWaylandDisplay()
{
    const QString display = qEnvironmentVariable("WAYLAND_DISPLAY");
    if (display.isEmpty())
        return false;
    return isThere(display.startsWith(QLatin1Char('/'))
                       ? display
                       : qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1Char('/') + display);
}

} // namespace

bool wantsWindow(const CommandLine& line)
{
    if (line.selfTest)
        return true;
    const bool isCommand = !line.command.isEmpty() && !line.opensAddress();
    if (isCommand || line.json || line.help)
        return false;
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || hasWaylandDisplay() || hasX11Display();
}

void becomeWindow(char** argv)
{
    const QByteArray program =
        QFile::encodeName(QCoreApplication::applicationDirPath() + QLatin1String("/vidora-window"));
    execv(program.constData(), argv);
    if (errno != ENOENT)
        Log::line(QStringLiteral("window: %1").arg(QString::fromLocal8Bit(std::strerror(errno))));
}

} // namespace vidora
