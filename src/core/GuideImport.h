#pragma once

#include "core/ChannelCatalogue.h"
#include "core/GuideIcons.h"
#include "listings/GuideSummary.h"
#include "platform/URLSession.h"

#include <variant>

namespace vidora {

/// What an import made.
struct ImportReport
{
    URL address;
    GuideSummary guide; ///< what was found and skipped
    std::vector<ObjectId> channels;
};

/// Makes the catalogue of an XMLTV guide of the user's own: channels with ids that stay the same at every import,
/// titles, drawn icons, and the guide's address. The catalogue is one file that is replaced as a whole; until then
/// everything stays as it was. Fetching the guide's icons is another matter. Blocks the caller; not on the main thread.
class GuideImport
{
public:
    /// `network` and `icons` outlive the import.
    GuideImport(URLSession& network, QString cataloguePath, GuideIcons& icons);

    /// `source`: an address, or the path of a file. `isEnded`: whether the user gave up meanwhile. The report, or a
    /// message for the user.
    std::variant<ImportReport, QString> import(const QString& source, const std::function<bool()>& isEnded) const;

    /// The id under which a channel of a guide stands in its catalogue.
    static ObjectId idOfChannel(const QString& guideId);
    /// The address of the guide whose catalogue this is; nothing for any other catalogue.
    static std::optional<URL> addressOfCatalogue(const QString& cataloguePath);

private:
    std::variant<Page, QString> fetch(const URL& address) const;

    URLSession& m_network;
    const QString m_cataloguePath;
    GuideIcons& m_icons;
};

} // namespace vidora
