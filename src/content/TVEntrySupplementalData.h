#pragma once

#include "content/AttributedText.h"
#include "platform/URL.h"

#include <QString>

#include <optional>

namespace vidora {

/// What the detail screen shows of a show beyond its schedule line. Filled by one thread, then only read.
/// An absent text is an empty std::optional; an empty text is a text.
struct TVEntrySupplementalData
{
    std::optional<AttributedText> description; ///< plain text, but for one family of providers
    std::optional<QString> episodeDescription;
    std::optional<QString> details; ///< line of facts: genre, country, year and the like
    std::optional<QString> directedBy;
    std::optional<AttributedText> roles; ///< cast
    std::optional<URL> imdbURL;
    std::optional<URL> trailerURL;
    std::optional<QString> language;
    bool alphabetUpdated = false; ///< never archived: a decoded object is converted again

    /// True when no field is set. A language alone counts as one.
    bool empty() const;
    /// Converts the five texts to the reader's alphabet in place, once in the life of the object. Texts with attributes
    /// come back plain where they were converted.
    void updateAlphabet();
};

} // namespace vidora
