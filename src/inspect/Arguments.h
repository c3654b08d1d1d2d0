#pragma once

#include "platform/Instant.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace vidora::inspect {

/// What the command line of the inspection tool asks for.
struct Arguments
{
    std::optional<Instant> clock;
    std::optional<QString> endpointsFile;
    std::optional<QString> iconFolder;
    bool batch = false;
    bool help = false;
    QJsonObject request; ///< the one request, without --batch
};

/// Reads arguments without the program's name. Throws UnusableRequest.
Arguments readArguments(const QStringList& arguments);

} // namespace vidora::inspect
