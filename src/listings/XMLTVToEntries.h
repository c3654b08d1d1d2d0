#pragma once

#include "content/ShowElement.h"
#include "listings/ChannelItem.h"
#include "listings/Scanner.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace vidora {

/// Reader of an XML guide document (XMLTV DTD 0.5.x): each `programme` that has not ended at `now` and belongs to a
/// wanted channel becomes an entry. The document is read as a stream: decompressed, parsed and finished side by side,
/// and never held decoded as a whole. Text becomes UTF-16 only for shows that are kept.
class XMLTVToEntries
{
public:
    using Entries = std::unordered_map<QString, std::vector<ExtendedTVEntry>>;

    /// `channels`: feed ids wanted, empty for all. `useImage`: whether `image` elements give pictures, which are
    /// appended to `endpoints.tv.pictures`. Reads nothing yet.
    XMLTVToEntries(QStringList channels, bool useImage, Instant now, const Endpoints& endpoints);

    /// Reads a whole page. False for a faulty page, of which nothing is kept. A document that is malformed XML keeps
    /// what came ahead of the fault.
    bool read(const Page& page);

    /// Entries by `sourceId`, in the order of the document.
    Entries& entries() { return m_entries; }

private:
    QStringList m_channels;
    bool m_useImage;
    Instant m_now;
    const Endpoints& m_endpoints;
    Entries m_entries;
};

/// Scanner of listing type 1. Reads pages until one is faulty; true when all were whole.
bool scanXMLTV(const Pages& pages, const ChannelItems& items, Instant now, const Endpoints& endpoints, Drafts& drafts);

/// A date of the XMLTV DTD: fourteen digits, an optional blank, an offset (+HH, +HHmm, +HH:mm or Z). Nothing without an
/// offset or for anything else.
std::optional<Instant> xmltvDate(QStringView text);

} // namespace vidora
