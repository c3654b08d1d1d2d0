#pragma once

#include "app/CommandLine.h"

#include <QString>

namespace vidora {

/// Whether this start opens the window: no command was given, and there is a display to open it on.
bool wantsWindow(const CommandLine& line);

/// Becomes the window's program, with the same arguments. Returns only where there is none or it can't be started: the
/// terminal then serves as well.
void becomeWindow(char** argv);

} // namespace vidora
