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
    QString command; ///< as it is named in the table; empty: none was named
    QStringList arguments;
    bool json = false;
    bool log = false;
    bool help = false;
    bool version = false;
    bool selfTest = false; ///< load every part of the window, show nothing
    /// The options that were given, by name with dashes; the value is empty for those that take none.
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

/// What `vidora --help` prints.
QString commandLineHelp();
/// What `vidora COMMAND --help` prints; without such a command, what `vidora --help` prints.
QString helpFor(const QString& command);
/// The line below the message of a usage error that tells where the help is.
QString helpHint(const QString& command);

} // namespace vidora
