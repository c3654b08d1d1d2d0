#pragma once

#include "app/CommandLine.h"

#include <QProcessEnvironment>
#include <QString>

namespace vidora {

/// Whether this start opens the window: no command was given, and there is a display to open it on.
bool wantsWindow(const CommandLine& line);

/// Whether the environment names a display, and one of this machine is there. `x11Sockets`: the folder of X11's.
bool hasDisplay(const QProcessEnvironment& environment, const QString& x11Sockets = QStringLiteral("/tmp/.X11-unix"));

/// Becomes the window's program, with the same arguments. Returns only where there is none or it can't be started: the
/// terminal then serves as well.
void becomeWindow(char** argv);

} // namespace vidora
