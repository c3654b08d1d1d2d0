#pragma once

#include "listings/GuideSummary.h"
#include "platform/URLSession.h"

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

namespace vidora {

/// Told of each icon as it comes in, on any thread; false ends the work.
using IconProgress = std::function<bool(std::size_t done, std::size_t of)>;

/// Puts an icon for every channel into the folder: the guide's own where it has one that can be fetched and is a
/// picture, else one drawn from the title's initials. `names` gets the file name by channel id. The number fetched,
/// or nothing when `progress` ended it. Blocks the caller; several icons are fetched side by side.
std::optional<std::size_t> saveGuideIcons(URLSession& network, const std::vector<GuideChannel>& channels,
                                          const QString& folder, QHash<QString, QString>& names,
                                          const IconProgress& progress);

/// A small picture with the initials of a title, as SVG 1.1.
QByteArray drawnIcon(const QString& title);

/// The file name ending of a picture by its first bytes; nothing for bytes that are no picture.
std::optional<QString> pictureEnding(const QByteArray& bytes);

} // namespace vidora
