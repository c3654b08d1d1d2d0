#pragma once

#include "content/TVEntrySupplementalData.h"

#include <QString>

#include <optional>

namespace vidora {

/// The text that the system keeps as the title: without remarks in brackets, up to the first comma, capitals tamed.
QString showTitle(const QString& text);

/// The rest of the title behind its comma, to be used as a short description.
std::optional<QString> showInstantDescription(const QString& text);

/// Takes credits out of the description, which is then brought into paragraphs. Writes `description`, `roles` and
/// `directedBy`. `creditsHost` is the host inside the provider's own credit lines. Does nothing unless the description
/// is plain text with at least one character.
void descriptionCleanUp(TVEntrySupplementalData& extra, const QString& creditsHost);

/// The scanners' shared clean-up: white space and punctuation go from the front, white space from the end, double
/// blanks become one. Nothing when nothing is left.
std::optional<QString> trimmedListingText(QStringView text);

/// Replaces HTML entities, each in a pass of its own over the whole text.
QString htmlCleanUp(const QString& text);

/// Brings white space of any Unicode kind in order.
QString whitespaceCleanUp(const QString& text);

} // namespace vidora
