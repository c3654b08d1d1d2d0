#pragma once

#include "app/CommandLine.h"

namespace vidora {

/// How the process ends.
struct ExitStatus
{
    static constexpr int done = 0;
    static constexpr int notDone = 1;         ///< a message on standard error says why
    static constexpr int askedWrongly = 2;    ///< nothing was tried; the message says where the help is
    static constexpr int endedBySignal = 128; ///< and the signal's number, as shells report it
};

/// Runs the command that a line names, or what happens without one, and gives the process's exit status. Main thread,
/// with an application object.
int runCommand(const CommandLine& line);

/// Says what is wrong with a command line, and where the help is. The exit status.
int sayUsageError(const QString& message, const QString& command);

} // namespace vidora
