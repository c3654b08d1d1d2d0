#pragma once

#include "app/CommandLine.h"

class QQmlEngine;

namespace vidora {

/// Makes the window's module and drawings known to an engine.
void prepareEngine(QQmlEngine& engine);

/// Opens the window on the home of the command line and runs until it is closed, or hands over to the window that is
/// open already, the address of a show included. The process's exit status. Main thread, with a QGuiApplication.
int runWindow(const CommandLine& line);

/// Loads every QML component, and opens the window once on an empty home of its own; says on standard error what is
/// wrong. The process's exit status.
int testWindow();

} // namespace vidora
