#include "app/Commands.h"

#include "app/Command.h"
#include "app/CommandSession.h"
#include "app/PasswordPrompt.h"
#include "platform/Localized.h"
#include "platform/Log.h"

namespace vidora {

namespace {

int runToEnd(const Command& command, CommandSession& session)
{
    try {
        // The blocks queued at launch (pruning, the channel objects) come ahead of every command, and the alarms that
        // rows show are known to them.
        session.settle();
        command.run(session);
        return session.isDone() ? ExitStatus::done : ExitStatus::notDone;
    } catch (const Refusal& refusal) {
        say(refusal.message);
        return ExitStatus::notDone;
    }
}

} // namespace

int sayUsageError(const QString& message, const QString& command)
{
    say(message);
    say(helpHint(command));
    return ExitStatus::askedWrongly;
}

int runCommand(const CommandLine& line)
{
    const Command& command = *commandNamed(line.command);
    if (line.log)
        Log::setSink(say);
    QString password;
    // What waits for the user must not hold the home's lock.
    if (command.asksPassword) {
        const auto given =
            readPassword(localized("Password of %1: ").arg(line.options.value(QStringLiteral("--user"))));
        if (!given) {
            say(localized("No password was given."));
            return ExitStatus::notDone;
        }
        password = *given;
    }
    const bool changes = line.arguments.size() >= command.changesWith;
    Device device(line, changes ? Device::Access::Write : Device::Access::Read, command.fetches);
    int status = ExitStatus::notDone;
    if (!changes || command.fetches || device.keepsChanges()) {
        CommandSession session(line, device, password);
        status = runToEnd(command, session);
    }
    return device.end(status);
}

} // namespace vidora
