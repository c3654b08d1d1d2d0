#pragma once

#include "screens/ChannelGroups.h"

#include <QString>

namespace vidora {

/// The languages of a channel by the names that they have in themselves: "sr" is "Srpski" or "Српски", "en/fr" is
/// "English, Français". A code that nobody knows stays; a channel without a language gives an empty text.
QString languageNames(const QString& codes);

/// Finds channels by title, in either alphabet, and by language: its code, its English name or its own. Overlooks case
/// and diacritics.
class ChannelSearch
{
public:
    /// An empty pattern finds every channel.
    explicit ChannelSearch(const QString& pattern);
    bool finds(const OfferedChannel& channel) const;

private:
    bool isIn(const QString& text) const;

    const QString m_pattern;
};

} // namespace vidora
