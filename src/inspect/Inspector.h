#pragma once

#include "inspect/Request.h"
#include "listings/Endpoints.h"
#include "platform/Clock.h"

#include <QHash>
#include <QJsonObject>

#include <memory>

namespace vidora::inspect {

/// What the questions are asked against.
struct Surroundings
{
    const Clock& clock;
    Endpoints endpoints;
    QString iconFolder;
};

/// Answers one request by calling the application's own functions. It holds no logic of its own.
/// Throws UnusableRequest; where the logic itself raises an exception, the answer is {"exception": text}.
QJsonObject answer(const Request& request, const Surroundings& surroundings);

using Command = QJsonObject (*)(const Request& request, const Surroundings& surroundings);

using CommandTable = QHash<QString, Command>; // by name

/// Commands on texts and values.
const CommandTable& contentCommands();
/// Commands on sources, documents and the catalogue.
const CommandTable& listingCommands();
/// Commands on favourites and alarms.
const CommandTable& alarmCommands();
/// All of them.
CommandTable allCommands();

} // namespace vidora::inspect
