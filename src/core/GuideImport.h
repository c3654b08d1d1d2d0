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
    std::size_t iconsFetched = 0; ///< the others were drawn
};

/// Makes the catalogue of an XMLTV guide of the user's own: channels with ids that stay the same at every import,
/// titles, icons, and the guide's address. The catalogue is one file that is replaced as a whole; until then everything
/// stays as it was. Blocks the caller; not on the main thread.
class GuideImport
{
public:
    /// `network` outlives the import.
    GuideImport(URLSession& network, QString cataloguePath, QString iconFolder);

    /// `source`: an address, or the path of a file. The report, or a message for the user.
    std::variant<ImportReport, QString> import(const QString& source, const IconProgress& progress) const;

    /// The id under which a channel of a guide stands in its catalogue.
    static ObjectId idOfChannel(const QString& guideId);
    /// The address of the guide whose catalogue this is; nothing for any other catalogue.
    static std::optional<URL> addressOfCatalogue(const QString& cataloguePath);

private:
    std::variant<Page, QString> fetch(const URL& address) const;

    URLSession& m_network;
    const QString m_cataloguePath;
    const QString m_iconFolder;
};

} // namespace vidora
