#pragma once

#include "content/ShowElement.h"
#include "listings/ListingParser.h"

#include <QJsonObject>

namespace vidora {

/// A show as JSON, in the form of the inspection tool: every key is present, null stands for what is absent, pictures
/// are sorted, texts with attributes are plain.
QJsonObject showToJson(const ShowElement& show);
QJsonObject supplementalDataToJson(const TVEntrySupplementalData& extra);

/// The reverse. "count" says how many parts there are; without it, those that are not null. What is missing or of
/// another type counts as absent; the shown forms are derived and not read.
Show showFromJson(const QJsonObject& json);

/// The lists of a parse: an object from channel to array of shows.
QJsonObject listsToJson(const ListingParser::Result& lists);

} // namespace vidora
