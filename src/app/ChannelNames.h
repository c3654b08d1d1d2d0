#pragma once

#include "core/ChannelCatalogue.h"

#include <QStringList>

#include <vector>

namespace vidora {

/// Finds a channel by its id, by its whole title, or by a part of the title that only one has, in either alphabet;
/// case and diacritics don't count. Throws Refusal where the name fits none or several.
ObjectId channelNamed(const QString& name, const ChannelData& channels);

/// All channels of the catalogue in the order of their titles, in the way of the device's language.
std::vector<ObjectId> channelsByTitle(const ChannelData& channels);

/// The title of a channel in the reader's alphabet, or its id where the catalogue doesn't know it.
QString titleOf(const ObjectId& channel, const ChannelData& channels);

/// The texts among these of which `name` is one or a part, and only the whole ones where there are any. Case and
/// diacritics don't count, and alphabets only where two texts differ in nothing else.
QStringList candidatesFor(const QString& name, const QStringList& texts);

/// The same for things that have several spellings each: which of them the name fits.
std::vector<std::size_t> placesNamed(const QString& name, const std::vector<QStringList>& spellings);

/// The one text of which `name` is all or a part. Throws Refusal where there is none or more than one.
QString textNamed(const QString& name, QStringList texts);

/// "X is none of ...", "X may be A, B or C": the message for a name that does not lead to exactly one text.
QString ambiguousName(const QString& name, const QStringList& candidates, const QStringList& all);

} // namespace vidora
