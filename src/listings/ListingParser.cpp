#include "listings/ListingParser.h"

#include "listings/Scanner.h"
#include "listings/XMLTVToEntries.h"
#include "platform/Log.h"

#include <algorithm>
#include <array>

namespace vidora {

namespace {

/// What happens to an exception that ends a scanner.
enum class Guard
{
    None,   ///< leaves the parse: nothing of a half-read list may reach the store
    Logged, ///< what was collected so far counts
    Silent
};

struct Format
{
    std::uint32_t type;
    void (*scan)(const ScanInput& input, Drafts& drafts);
    Guard guard;
};

/// The listing types that are read from page texts. Type 1 is read from the bytes and has no row.
constexpr Format formats[] = {
    {0, scanPortNetwork, Guard::None}, {2, scanPalinsesto, Guard::None}, {3, scanBarrandov, Guard::None},
    {4, scanDsk, Guard::None},         {5, scanJoj, Guard::Silent},      {6, scanPrimaMax, Guard::Logged},
    {7, scanHbo, Guard::Logged},       {8, scanNova, Guard::Logged},     {9, scanDolceSport, Guard::None},
    {10, scanCinestar, Guard::None},   {11, scanRomania, Guard::None},
};

const Format* formatFor(std::uint32_t type)
{
    const auto format = std::find_if(std::begin(formats), std::end(formats),
                                     [type](const Format& candidate) { return candidate.type == type; });
    return format == std::end(formats) ? nullptr : format;
}

void scan(const Format& format, const ScanInput& input, Drafts& drafts)
{
    if (format.guard == Guard::None)
        return format.scan(input, drafts);
    try {
        format.scan(input, drafts);
    } catch (const std::exception& exception) {
        if (format.guard == Guard::Logged)
            Log::line(QLatin1String("exception ") + QString::fromUtf8(exception.what()));
    }
}

/// Texts of the pages ahead of the first faulty one.
QStringList texts(const Pages& pages)
{
    QStringList result;
    for (const Page& page : pages) {
        const auto text = page.text();
        if (!text)
            break;
        result.append(*text);
    }
    return result;
}

/// Titles that say only that there is no information.
bool isPlaceholder(const TVEntry& entry)
{
    static const std::array<QString, 6> titles = {
        QStringLiteral("No information"),    QStringLiteral("Nincs információ"), QStringLiteral("Není informace"),
        QStringLiteral("Nie je informácia"), QStringLiteral("Nema sadržaja"),    QStringLiteral("Nema podataka"),
    };
    return entry.identificator() && std::find(titles.begin(), titles.end(), *entry.identificator()) != titles.end();
}

bool startsTogether(const ShowDraft& a, const ShowDraft& b)
{
    return a.entry->dateTime() == b.entry->dateTime();
}

/// Ordered by start, each start once, the earlier element of two kept.
void order(DraftList& list)
{
    std::erase_if(list, [](const ShowDraft& draft) { return !draft.entry->dateTime(); });
    std::stable_sort(list.begin(), list.end(), [](const ShowDraft& a, const ShowDraft& b) {
        return *a.entry->dateTime() < *b.entry->dateTime();
    });
    if (!list.empty() && isPlaceholder(*list.back().entry))
        list.pop_back();
    list.erase(std::unique(list.begin(), list.end(), startsTogether), list.end());
}

/// The end of each show is the start of the next one.
void deriveEnds(DraftList& list)
{
    constexpr Seconds lastShow{7200};
    for (std::size_t i = 1; i < list.size(); ++i)
        list[i - 1].entry->setEndDateTime(list[i].entry->dateTime());
    if (!list.empty())
        list.back().entry->setEndDateTime(*list.back().entry->dateTime() + lastShow);
}

/// Drops what stands in front of the first show that has not ended; false when all are over.
bool dropPast(DraftList& list, Instant now)
{
    const auto current = std::find_if(list.begin(), list.end(), [now](const ShowDraft& draft) {
        return draft.entry->endDateTime() && *draft.entry->endDateTime() > now;
    });
    if (current == list.end())
        return false;
    list.erase(list.begin(), current);
    return true;
}

/// Brings all lists in order. The channels whose lists are to be stored, in the order of the items.
std::vector<ObjectId> cleanUp(const ChannelItems& items, Instant now, std::uint32_t type, Drafts& drafts)
{
    std::vector<ObjectId> stored;
    for (const ChannelItem& item : items) {
        const auto found = drafts.find(item.channel);
        if (found == drafts.end())
            continue;
        DraftList& list = found->second;
        order(list);
        if (type >= 2)
            deriveEnds(list);
        if (!dropPast(list, now))
            continue;
        for (const ShowDraft& draft : list)
            draft.entry->setLanguage(item.language);
        stored.push_back(item.channel);
    }
    return stored;
}

std::shared_ptr<const ShowList> publish(DraftList drafts)
{
    auto shows = std::make_shared<ShowList>();
    shows->reserve(drafts.size());
    for (ShowDraft& draft : drafts)
        shows->push_back(std::move(draft).publish());
    return shows;
}

} // namespace

ListingParser::ListingParser(const Clock& clock, const Endpoints& endpoints, ListingReceiver& receiver)
    : m_clock(clock)
    , m_endpoints(endpoints)
    , m_receiver(receiver)
{
}

ListingParser::Result ListingParser::netList(const ChannelItems& netList, const Pages& xml, Instant now,
                                             std::uint32_t type)
{
    Result result;
    this->netList(netList, xml, now, type,
                  [&result](const ObjectId& channel, const std::shared_ptr<const ShowList>& list) {
                      result.emplace(channel, list);
                  });
    return result;
}

void ListingParser::netList(const ChannelItems& netList, const Pages& xml, Instant now, std::uint32_t type,
                            const Found& found)
{
    Drafts drafts;
    if (type == 1) {
        scanXMLTV(xml, netList, m_clock.now(), m_endpoints, drafts);
    } else if (const Format* format = formatFor(type)) {
        const QStringList pages = texts(xml);
        if (pages.isEmpty() && !xml.empty())
            Log::line(QStringLiteral("the first page is faulty"));
        else
            scan(*format, ScanInput{pages, netList, now, m_clock, m_endpoints}, drafts);
    }

    const std::vector<ObjectId> stored = cleanUp(netList, now, type, drafts);
    for (const ObjectId& channel : stored) {
        const auto list = drafts.find(channel);
        if (list == drafts.end())
            continue; // named twice
        auto shows = publish(std::move(list->second));
        drafts.erase(list);
        found(channel, shows);
        m_receiver.storeList(channel, std::move(shows));
        m_receiver.addToSaveSchedule(channel);
    }
    for (auto& [channel, list] : drafts)
        found(channel, publish(std::move(list)));
    if (!stored.empty())
        m_receiver.listingsStored();
}

} // namespace vidora
