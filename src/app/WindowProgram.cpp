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

bool hasX11Display(const QProcessEnvironment& environment, const QString& sockets)
{
    const QString display = environment.value(QStringLiteral("DISPLAY"));
    if (!display.startsWith(QLatin1Char(':')))
        return !display.isEmpty(); // on another machine, which only the toolkit can ask
    const QString number = display.mid(1).section(QLatin1Char('.'), 0, 0);
    return isThere(sockets + QLatin1String("/X") + number);
}

bool hasWaylandDisplay(const QProcessEnvironment& environment)
{
    const QString display = environment.value(QStringLiteral("WAYLAND_DISPLAY"));
    if (display.isEmpty())
        return false;
    const QString folder = environment.value(QStringLiteral("XDG_RUNTIME_DIR"));
    return isThere(display.startsWith(QLatin1Char('/')) ? display : folder + QLatin1Char('/') + display);
}

} // namespace

bool wantsWindow(const CommandLine& line)
{
    if (line.selfTest)
        return true;
    const bool isCommand = !line.command.isEmpty() && !line.opensAddress();
    if (isCommand || line.json || line.help)
        return false;
    return hasDisplay(QProcessEnvironment::systemEnvironment());
}

bool hasDisplay(const QProcessEnvironment& environment, const QString& x11Sockets)
{
    return environment.contains(QStringLiteral("QT_QPA_PLATFORM")) || hasWaylandDisplay(environment) ||
           hasX11Display(environment, x11Sockets);
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
