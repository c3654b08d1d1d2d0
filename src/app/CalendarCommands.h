#pragma once

#include "app/CommandLine.h"
#include "app/Device.h"

namespace vidora {

/// Whether the command needs a password, which is to be asked for ahead of all else: what waits for the user must not
/// hold the home's lock.
bool wantsCalendarPassword(const CommandLine& line);

/// Whether the command is about calendars and changes something, be it only what is known of a server.
bool changesCalendars(const CommandLine& line);

/// Runs "calendars": lists them, chooses one, adds, tests and removes accounts on calendar servers, and says what it
/// did. The exit status.
int runCalendarCommand(const CommandLine& line, Device& device, const QString& password);

} // namespace vidora
