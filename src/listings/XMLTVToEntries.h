#pragma once

#include "listings/ChannelItem.h"
#include "listings/Scanner.h"
#include "listings/XMLTVDate.h"
#include "listings/XMLTVDocument.h"

#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

namespace vidora {

/// Reader of XML guide documents (XMLTV DTD 0.5.x): each `programme` that has not ended at `now` and belongs to a
/// wanted channel becomes an entry. A document is read as a stream: decompressed, parsed and finished side by side, and
/// never held decoded as a whole.
class XMLTVToEntries
{
public:
    /// The entries of one feed channel, in the order of the document.
    struct FeedList
    {
        QString sourceId;
        std::vector<ExtendedTVEntry> entries;
    };

    /// `channels`: feed ids wanted, empty for all. `useImage`: whether `image` elements give pictures, which are
    /// appended to `endpoints.tv.pictures`. `endpoints` outlives this object. Reads nothing yet.
    XMLTVToEntries(const QStringList& channels, bool useImage, Instant now, const Endpoints& endpoints);

    /// Reads a whole page; what an earlier one gave is dropped. False for a faulty page, of which nothing is kept. A
    /// document that is malformed XML keeps what came ahead of the fault.
    bool read(const Page& page);

    /// One list for each feed channel that had an entry, in the order of their first ones.
    std::vector<FeedList>& entries() { return m_entries; }

private:
    XMLTVSelection m_selection;
    const Endpoints& m_endpoints;
    std::vector<FeedList> m_entries;
};

/// Scanner of listing type 1. Reads pages until one is faulty; true when all were whole. `now`: the present moment;
/// what has ended by then gives no entry.
bool scanXMLTV(const Pages& pages, const ChannelItems& items, Instant now, const Endpoints& endpoints, Drafts& drafts);

} // namespace vidora
