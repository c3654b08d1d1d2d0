#include "listings/XMLTVToEntries.h"

#include "listings/PageStream.h"
#include "platform/Log.h"

namespace vidora {
namespace {

/// What the channel items of a feed ask for.
struct FeedIds
{
    QStringList ids;
    bool useImage = false;
};

std::optional<QString> feedId(const QString& sourceId)
{
    if (sourceId.startsWith(QLatin1String("r.")))
        return sourceId.mid(sourceId.indexOf(u'.', 2) + 1);
    if (sourceId.startsWith(QLatin1String("tvpc.")))
        return sourceId.mid(5);
    if (sourceId.startsWith(QLatin1String("s.")) || sourceId.startsWith(QLatin1String("n.")))
        return sourceId.mid(2);
    return std::nullopt;
}

FeedIds feedIds(const ChannelItems& items)
{
    FeedIds result;
    for (const ChannelItem& item : items) {
        result.useImage = result.useImage || item.sourceId.endsWith(QLatin1String(".tv"));
        if (auto id = feedId(item.sourceId))
            result.ids.append(std::move(*id));
    }
    return result;
}

/// An id and the channel item of the same index belong together: of several equal ids the last one counts.
const ObjectId& channelOf(const QString& sourceId, const QStringList& ids, const ChannelItems& items)
{
    const qsizetype index = ids.lastIndexOf(sourceId);
    return items.at(index < 0 ? 0 : static_cast<std::size_t>(index)).channel;
}

ShowDraft draftOf(ExtendedTVEntry&& entry, const ObjectId& channel, const QString& sourceId)
{
    entry.basic->setChannel(channel);
    entry.basic->setSourceId(sourceId);
    ShowDraft draft{std::move(entry.basic), entry.categories, std::move(entry.extra), std::nullopt};
    if (entry.icon)
        draft.pictures = Pictures{std::move(*entry.icon)};
    return draft;
}

} // namespace

XMLTVToEntries::XMLTVToEntries(const QStringList& channels, bool useImage, Instant now, const Endpoints& endpoints)
    : m_selection(channels, now, useImage ? std::optional{endpoints.tv.pictures} : std::nullopt)
    , m_endpoints(endpoints)
{
    if (Log::enabled())
        Log::line(QStringLiteral("channels=") + channels.join(u','));
}

bool XMLTVToEntries::read(const Page& page)
{
    m_entries.clear();
    std::unordered_map<QString, std::size_t> indices;
    XMLTVDocument document{m_selection, [&](XMLTVProgramme&& programme) {
                               const auto [index, isNew] = indices.try_emplace(programme.sourceId, m_entries.size());
                               if (isNew)
                                   m_entries.push_back({programme.sourceId, {}});
                               m_entries[index->second].entries.push_back(
                                   finishEntry(std::move(programme), m_endpoints.creditsHost));
                           }};
    const Page::Outcome outcome = readUtf8Ahead(page, [&](std::string_view bytes) {
        document.feed(bytes);
        return true;
    });
    if (outcome == Page::Outcome::Faulty) {
        m_entries.clear();
        return false;
    }
    document.finish();
    return true;
}

bool scanXMLTV(const Pages& pages, const ChannelItems& items, Instant now, const Endpoints& endpoints, Drafts& drafts)
{
    const FeedIds wanted = feedIds(items);
    for (const Page& page : pages) {
        XMLTVToEntries converter{wanted.ids, wanted.useImage, now, endpoints};
        if (!converter.read(page))
            return false;
        for (XMLTVToEntries::FeedList& list : converter.entries()) {
            const ObjectId& channel = channelOf(list.sourceId, wanted.ids, items);
            DraftList& result = drafts[channel];
            for (ExtendedTVEntry& entry : list.entries)
                result.push_back(draftOf(std::move(entry), channel, list.sourceId));
        }
    }
    return true;
}

} // namespace vidora
