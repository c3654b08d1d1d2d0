#pragma once

#include "listings/Page.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace vidora {

/// A `channel` element of a guide (XMLTV DTD 0.5.x).
struct GuideChannel
{
    QString id;
    QStringList displayNames;    ///< in the order of the document, none of them empty
    QString language;            ///< "lang" of the first display-name; may be empty
    std::optional<QString> icon; ///< "src" of the first icon that has one
    std::size_t programmes = 0;
};

/// What a guide document holds, without its shows.
struct GuideSummary
{
    std::vector<GuideChannel> channels; ///< in the order of the document, each id once
    std::size_t programmes = 0;         ///< of these channels, with a start and an end
    std::size_t days = 0;               ///< on how many UTC days programmes start
    std::size_t channelsWithoutId = 0;
    std::size_t channelsTwice = 0;
    std::size_t programmesWithoutTimes = 0;
    std::size_t programmesOfUnknownChannels = 0;
};

/// Reads a whole guide as a stream. Nothing for a faulty page, and for a document whose root is not `tv`. A document
/// that is malformed counts as far as it could be read. Any thread.
std::optional<GuideSummary> readGuideSummary(const Page& page);

} // namespace vidora
