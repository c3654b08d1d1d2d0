#include "alarms/AlarmMinutes.h"
#include "alarms/SilentHours.h"
#include "inspect/Inspector.h"
#include "platform/DeviceSettings.h"

#include <QHash>

namespace vidora::inspect {

namespace {

/// Minutes since midnight of a text such as "07:00".
int minutesOfDay(const Request& request, const char* field)
{
    const QTime time = QTime::fromString(request.text(field), QStringLiteral("H:m"));
    if (!time.isValid())
        throw UnusableRequest(QStringLiteral("field \"%1\": a time such as 07:00 is wanted").arg(QLatin1String(field)));
    return time.hour() * 60 + time.minute();
}

QJsonObject minutes(const Request& request, const Surroundings&)
{
    return {{QStringLiteral("minutes"), static_cast<qint64>(normalizedMinutes(request.number("value")))}};
}

QJsonObject silent(const Request& request, const Surroundings&)
{
    const SilentPeriod period{request.flag("enabled"), minutesOfDay(request, "from"), minutesOfDay(request, "to"),
                              DeviceSettings::timeZone()};
    return {{QStringLiteral("mayBeAlarmed"), period.mayBeAlarmedAt(request.instant("at"))}};
}

} // namespace

const CommandTable& alarmCommands()
{
    static const CommandTable commands{
        {QStringLiteral("minutes"), minutes},
        {QStringLiteral("silent"), silent},
    };
    return commands;
}

} // namespace vidora::inspect
