#include "inspect/Inspector.h"

namespace vidora::inspect {

QJsonObject answer(const Request& request, const Surroundings& surroundings)
{
    const QString name = request.command();
    Command command = contentCommand(name);
    if (!command)
        command = listingCommand(name);
    if (!command)
        command = alarmCommand(name);
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
