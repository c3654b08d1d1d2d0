#pragma once

#include "core/ChannelCatalogue.h"

#include <optional>
#include <variant>
#include <vector>

namespace vidora {

/// A channel that a user named, or the message to give where the name fits none or several.
using NamedChannel = std::variant<ObjectId, QString>;

/// Finds a channel by its id, by its whole title, or by a part of the title that only one has; case and diacritics
/// don't count.
NamedChannel channelNamed(const QString& name, const ChannelData& channels);

/// All channels of the catalogue in the order of their titles, in the way of the device's language.
std::vector<ObjectId> channelsByTitle(const ChannelData& channels);

/// The title of a channel, or its id where the catalogue has none.
QString titleOf(const ObjectId& channel, const ChannelData& channels);

/// The texts among these of which `name` is one or a part, and only the exact ones where there are any.
QStringList candidatesFor(const QString& name, const QStringList& texts);

/// "X is none of ...", "X may be A, B or C": the message for a name that does not lead to exactly one text.
QString ambiguousName(const QString& name, const QStringList& candidates, const QStringList& all);

} // namespace vidora
