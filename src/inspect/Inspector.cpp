#include "inspect/Inspector.h"

namespace vidora::inspect {

CommandTable allCommands()
{
    CommandTable commands = contentCommands();
    commands.insert(listingCommands());
    commands.insert(alarmCommands());
    return commands;
}

QJsonObject answer(const Request& request, const Surroundings& surroundings)
{
    const QString name = request.command();
    static const CommandTable commands = allCommands();
    const Command command = commands.value(name);
    if (!command)
        throw UnusableRequest(QStringLiteral("unknown command \"%1\"").arg(name));
    try {
        return command(request, surroundings);
    } catch (const UnusableRequest&) {
        throw;
    } catch (const std::exception& exception) {
        return {{QStringLiteral("exception"), QString::fromUtf8(exception.what())}};
    }
}

} // namespace vidora::inspect
