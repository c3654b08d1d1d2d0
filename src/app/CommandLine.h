#pragma once

#include "platform/Instant.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace vidora {

/// What was asked for on the command line.
struct CommandLine
{
    QString command; ///< empty: no command was named
    QStringList arguments;
    bool json = false;
    bool log = false;
    bool help = false;
    bool version = false;
    bool selfTest = false; ///< load every part of the window, show nothing
    /// The options that only some commands take, by name: those with a value such as "--alarm", "--at", "--user", and
    /// those without one, such as "--premieres", with an empty one.
    QHash<QString, QString> options;
    std::optional<QString> home;
    std::optional<Instant> clock;

    /// Whether the one argument is an address in the application's own scheme, as the desktop hands it over.
    bool opensAddress() const { return command.startsWith(QLatin1String("vidora:")) && arguments.isEmpty(); }
};

/// The command line, or a message that says what is wrong with it.
struct CommandLineResult
{
    CommandLine line;
    std::optional<QString> error;
};

/// Reads arguments without the program's name. Options may stand anywhere; "--" ends them.
CommandLineResult readCommandLine(const QStringList& arguments);

/// What `--help` prints.
QString commandLineHelp();

} // namespace vidora
