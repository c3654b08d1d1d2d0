#pragma once

#include "core/ChannelCatalogue.h"

#include <vector>

namespace vidora {

/// Finds a channel by its id, by its whole title, or by a part of the title that only one has; case and diacritics
/// don't count. Throws Refusal where the name fits none or several.
ObjectId channelNamed(const QString& name, const ChannelData& channels);

/// All channels of the catalogue in the order of their titles, in the way of the device's language.
std::vector<ObjectId> channelsByTitle(const ChannelData& channels);

/// The title of a channel, or its id where the catalogue has none.
QString titleOf(const ObjectId& channel, const ChannelData& channels);

/// The texts among these of which `name` is one or a part, and only the exact ones where there are any.
QStringList candidatesFor(const QString& name, const QStringList& texts);

/// The one text of which `name` is all or a part. Throws Refusal where there is none or more than one.
QString textNamed(const QString& name, QStringList texts);

/// "X is none of ...", "X may be A, B or C": the message for a name that does not lead to exactly one text.
QString ambiguousName(const QString& name, const QStringList& candidates, const QStringList& all);

} // namespace vidora
