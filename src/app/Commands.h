#pragma once

#include "app/CommandLine.h"

namespace vidora {

/// Runs one command of the command line and gives the process's exit status: 0, or 1 with a message on standard error.
/// Main thread, with an application object.
int runCommand(const CommandLine& line);

} // namespace vidora
