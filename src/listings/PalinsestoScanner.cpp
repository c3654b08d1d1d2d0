#include "listings/PageScanner.h"
#include "listings/PalinsestoReader.h"
#include "listings/Scanner.h"

#include <algorithm>
#include <string_view>

namespace vidora {

namespace {

constexpr qsizetype codeSize = 2;
/// Behind a channel's code, its closing quote and bracket.
constexpr qsizetype bodyAt = codeSize + 2;

/// The feed of all channels, from which the part that one channel needs is taken at a time.
class PalinsestoFeed
{
public:
    explicit PalinsestoFeed(QStringView text)
        : m_page(text)
        , m_ids(m_page.findAll(u" id=\"", 0, m_page.size()))
        , m_closings(m_page.findAll(u"</canale>", 0, m_page.size()))
    {
    }

    /// Hands the feed over without the shows of channels other than this one. Codes of any other length than two
    /// characters are those of feeds that name channels in another way.
    template<typename Receiver>
    void read(QStringView code, Receiver&& receive) const
    {
        qsizetype kept = 0, position = 0;
        auto closing = m_closings.begin();
        for (const PageScanner::Match& id : m_ids) {
            if (id.at < position)
                continue;
            closing = std::find_if(closing, m_closings.end(),
                                   [&id](const PageScanner::Match& match) { return match.at >= id.end; });
            if (closing == m_closings.end() || closing->at <= id.end + bodyAt)
                break;
            position = id.end;
            if (m_page.units(id.end, codeSize) == code)
                continue;
            position = closing->at;
            receive(m_page.slice(kept, id.end + bodyAt));
            kept = closing->at;
        }
        receive(m_page.slice(kept, m_page.size()));
    }

private:
    PageScanner m_page;
    std::vector<PageScanner::Match> m_ids, m_closings;
};

/// A show without information is told by its description, if it has one.
void finish(TVEntry& entry, const ObjectId& channel)
{
    entry.setChannel(channel);
    if (entry.identificator() != QLatin1String("Nessuna Informazione"))
        return;
    const QString description = entry.instantDescription().value_or(QString());
    if (description.isEmpty())
        return;
    entry.setIdentificator(description);
    entry.setInstantDescription1(std::nullopt);
}

void readChannel(const PalinsestoFeed& feed, const ChannelItem& item, Drafts& drafts)
{
    const PageScanner sourceId(item.sourceId);
    PalinsestoReader reader(item.sourceId);
    XMLEventStream stream(reader);
    feed.read(sourceId.slice(1, sourceId.size()), [&stream](QStringView text) {
        const QByteArray bytes = text.toUtf8();
        stream.feed({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    });
    stream.finish();
    // Of a broken document nothing is used, and the channel keeps what it had.
    if (stream.failed())
        return;
    DraftList shows = reader.takeShows();
    for (ShowDraft& show : shows)
        finish(*show.entry, item.channel);
    drafts[item.channel] = std::move(shows);
}

} // namespace

void scanPalinsesto(const ScanInput& input, Drafts& drafts)
{
    const QString text = input.pages.join(QString());
    const PalinsestoFeed feed(text);
    for (const ChannelItem& item : input.items)
        readChannel(feed, item, drafts);
}

} // namespace vidora
