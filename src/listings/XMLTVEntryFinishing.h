#pragma once

#include "content/ShowElement.h"
#include "content/TVListingsCategory.h"

#include <QString>

#include <optional>

namespace vidora {

/// What an XMLTV document says of one programme, text by text as it stands there.
struct XMLTVProgramme
{
    using Text = std::optional<QString>;

    QString sourceId;
    std::optional<Instant> start;
    Instant stop;
    Text title, subtitle, description, roles, directedBy, category;
    TVListingsCategory categories = 0; ///< bits that elements and attributes have set
    bool previouslyShown = false;
    std::optional<URL> icon;
};

/// True for the titles by which a feed says that it knows nothing: such a programme is no show.
bool isPlaceholderTitle(QStringView title);

/// Turns what the feed gave into what the rest of the system expects. Feeds put genres into the sub-title, credits into
/// the description, series marks and episodes into the title; all that is taken apart here. `programme` has a title.
/// The time is linear in the length of the texts. Pure; any thread.
ExtendedTVEntry finishEntry(XMLTVProgramme programme, const QString& creditsHost);

} // namespace vidora
