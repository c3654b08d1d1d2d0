#pragma once

#include "app/CommandLine.h"
#include "app/Device.h"

namespace vidora {

/// Whether a command is about favourites and alarms.
bool isAlarmCommand(const QString& command);
/// Whether it does more than show what there is.
bool changesAlarms(const CommandLine& line);

/// Runs such a command to its end, the work on the calendar included, and says what it did. The exit status.
int runAlarmCommand(const CommandLine& line, Device& device);

} // namespace vidora
