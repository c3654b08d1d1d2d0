#include "core/UpdateCycle.h"

#include "listings/ListingSources.h"
#include "platform/Log.h"

#include <algorithm>
#include <atomic>
#include <unordered_set>

namespace vidora {

namespace {

/// "source n.lipa1.rs and 6 more, http://host/epg.xml: fetched, status 200, 4711 bytes", for the log.
QString sourceLine(const ChannelItems& needed, const URLSet& urls, const Pages& pages, const PageOutcome& last)
{
    QString line = QStringLiteral("source ") + needed.front().sourceId;
    if (needed.size() > 1)
        line += QStringLiteral(" and %1 more").arg(needed.size() - 1);
    line += QStringLiteral(", ") + last.address;
    if (urls.size() > 1)
        line += QStringLiteral(" (page %1 of %2)").arg(std::min(pages.size() + 1, urls.size())).arg(urls.size());
    return line + QStringLiteral(": ") + last.text();
}

QString whyNothing(const Pages& pages)
{
    if (!Log::enabled())
        return {};
    const auto everything = [](std::string_view) { return true; };
    const bool isDamaged = pages.front().readUtf8(everything) == Page::Outcome::Faulty;
    return isDamaged ? QStringLiteral("nothing: the page is damaged") : QStringLiteral("nothing: no usable show");
}

} // namespace

/// What one pass knows, all of it gone at its end.
struct UpdateCycle::Pass
{
    struct Choice
    {
        URLSet urls;
        std::size_t location; ///< 1 for a channel's first source
    };

    std::unordered_map<URLSet, std::vector<Source>, URLSetHash> groups;
    std::vector<Choice> choices;
    std::unordered_set<ObjectId> missing; ///< channels that need data and have none yet
    std::size_t shows = 0;
    bool parsedAnything = false;

    // First choices of all channels first, then second ones; within one rank the order of the selection. An address set
    // that several channels share stands at the place of its best rank.
    std::vector<URLSet> inOrder()
    {
        std::stable_sort(choices.begin(), choices.end(),
                         [](const Choice& a, const Choice& b) { return a.location < b.location; });
        std::vector<URLSet> ordered;
        std::unordered_set<URLSet, URLSetHash> seen;
        for (Choice& choice : choices) {
            if (seen.insert(choice.urls).second)
                ordered.push_back(std::move(choice.urls));
        }
        return ordered;
    }
};

// A group is a set: a channel may name one source twice. What stands there of a channel stands at the end, since
// channels are collected one after the other.
void UpdateCycle::addTo(std::vector<Source>& group, Source source)
{
    for (auto at = group.rbegin(); at != group.rend() && at->channel == source.channel; ++at) {
        if (at->sourceId == source.sourceId)
            return;
    }
    group.push_back(std::move(source));
}

std::size_t UpdateCycle::URLSetHash::operator()(const URLSet& urls) const
{
    std::size_t hash = urls.size();
    for (const URL& url : urls)
        hash = hash * 31 + std::hash<URL>()(url);
    return hash;
}

UpdateCycle::UpdateCycle(Services services, UpdateObserver& observer)
    : m_services(std::move(services))
    , m_observer(observer)
{
}

UpdateCycle::~UpdateCycle()
{
    end();
    m_passes.wait();
}

void UpdateCycle::checkAndUpdateAllChannels()
{
    m_passes.enter();
    if (m_asked++ == 0)
        beginPass();
}

// The shows are counted when the pass has its turn: counts from before would have it read again what the pass ahead of
// it has just brought.
void UpdateCycle::beginPass()
{
    m_services.listings.showCountForSelectedChannelsForQueue(m_services.checkAndUpdateAllChannelsQueue,
                                                             [this](const std::unordered_map<ObjectId, int>& counts) {
                                                                 run(counts);
                                                                 if (--m_asked > 0)
                                                                     beginPass();
                                                                 m_passes.leave();
                                                             });
}

void UpdateCycle::run(const std::unordered_map<ObjectId, int>& showCounts)
{
    // Of its own for each pass: the next one may begin before the main thread has ended this one's.
    const auto task = std::make_shared<std::atomic<Application::BackgroundTaskIdentifier>>();
    const auto endTask = [&application = m_services.application, task] { application.endBackgroundTask(*task); };
    *task = m_services.application.beginBackgroundTask(QStringLiteral("listings update"), endTask);

    Pass pass;
    if (!m_isEnding)
        collectWhatIsNeeded(pass, showCounts);
    m_mainBlocks.async([this, channels = pass.missing.size()] { m_observer.passStarted(channels); });

    for (const URLSet& urls : pass.inOrder()) {
        if (m_isEnding)
            break;
        update(pass, urls);
    }

    m_mainBlocks.async(endTask);
    if (pass.parsedAnything) {
        m_services.loadQueue.sync([this] { m_services.listings.updatePopularList(); });
        // Alarms leave the events of a channel alone while it is loading, and would not come back to them.
        m_services.listings.listingsStored();
    }
    m_mainBlocks.async(
        [this, shows = pass.shows, failed = std::vector<ObjectId>(pass.missing.begin(), pass.missing.end())] {
            m_observer.passEnded(shows, failed);
        });
}

void UpdateCycle::collectWhatIsNeeded(Pass& pass, const std::unordered_map<ObjectId, int>& showCounts)
{
    for (const ObjectId& id : m_services.channels.selected()) {
        const auto channel = m_services.channels.channelWithChannelId(id);
        if (!channel)
            continue;
        const auto count = showCounts.find(id);
        // However young its file is, a channel with too few shows ahead must load.
        if (count != showCounts.end() && count->second < m_services.showCount())
            channel->unload();
        if (count != showCounts.end() && !channel->reloadNeeded())
            continue;
        m_services.loadQueue.sync([&] { collect(pass, id); });
    }
}

void UpdateCycle::collect(Pass& pass, const ObjectId& channel)
{
    const auto data = m_services.channelData.find(channel);
    if (data == m_services.channelData.end())
        return;
    pass.missing.insert(channel);
    const Instant now = m_services.clock.now();
    std::size_t location = 0;
    for (const QString& sourceId : data->second.sources()) {
        ++location;
        auto urls = urlsForSourceId(sourceId, now, data->second.language(), m_services.endpoints, m_services.random);
        if (!urls) {
            Log::line(QStringLiteral("source %1: no address").arg(sourceId));
            continue;
        }
        addTo(pass.groups[*urls], {channel, sourceId});
        pass.choices.push_back({std::move(*urls), location});
    }
}

// What this pass has brought, it doesn't bring again: a user who refreshes a channel meanwhile gets its first source by
// the pass that the refresh asks for, never a lower one by this.
ChannelItems UpdateCycle::neededOf(const Pass& pass, const URLSet& urls) const
{
    ChannelItems needed;
    for (const Source& source : pass.groups.at(urls)) {
        const auto channel = m_services.channels.channelWithChannelId(source.channel);
        if (channel && pass.missing.contains(source.channel) && channel->reloadNeeded())
            needed.push_back({source.channel, source.sourceId, channel->language()});
    }
    return needed;
}

void UpdateCycle::update(Pass& pass, const URLSet& urls)
{
    const ChannelItems needed = neededOf(pass, urls);
    if (needed.empty())
        return;
    std::vector<ObjectId> channels;
    for (const ChannelItem& item : needed)
        channels.push_back(item.channel);
    m_mainBlocks.async([this, channels = std::move(channels)] { m_observer.fetching(channels); });

    PageOutcome last;
    const Pages pages = fetch(urls, last);
    QString found = QStringLiteral("nothing");
    if (!pages.empty())
        m_services.loadQueue.sync([&] { found = parse(pass, needed, pages); });
    if (Log::enabled())
        Log::line(sourceLine(needed, urls, pages, last) + QStringLiteral("; ") + found);
}

Pages UpdateCycle::fetch(const URLSet& urls, PageOutcome& last)
{
    Pages pages;
    for (const URL& url : urls) {
        URLRequest request(url);
        request.headerFields.set("User-Agent", m_services.userAgent.value());
        request.headerFields.set("Accept-Encoding", "gzip,deflate");
        auto page = m_services.fetcher.netPageForRequest(request, false, &last);
        if (!page)
            break;
        pages.push_back(std::move(*page));
    }
    return pages;
}

QString UpdateCycle::parse(Pass& pass, const ChannelItems& needed, const Pages& pages)
{
    try {
        const std::uint32_t type = listingsTypeForSourceId(needed.front().sourceId, m_services.endpoints);
        setLoading(needed, true);
        const Instant now = m_services.clock.now();
        Delivery delivery;
        m_services.parser.netList(needed, pages, now, type, [&](const ObjectId& channel, const SharedShowList& list) {
            const auto count = std::min<std::size_t>(list->size(), m_services.showCount());
            const bool isStored = !list->empty() && endsAfter(*list->front()->entry, now);
            delivery[channel] = {
                {list->begin(), list->begin() + static_cast<std::ptrdiff_t>(count)}, list->size(), isStored};
        });
        setLoading(needed, false);
        if (delivery.empty())
            return whyNothing(pages);
        publish(pass, delivery);
        std::size_t shows = 0;
        for (const auto& [channel, delivered] : delivery)
            shows += delivered.count;
        return QStringLiteral("%1 of %2 channels, %3 shows").arg(delivery.size()).arg(needed.size()).arg(shows);
    } catch (const std::exception& exception) {
        // The channels stay marked as loading: what made a parse fail would make the next one fail as well.
        return QStringLiteral("listings parsing exception!!! %1").arg(QString::fromUtf8(exception.what()));
    }
}

void UpdateCycle::publish(Pass& pass, const Delivery& delivery)
{
    pass.parsedAnything = true;
    // The store stamps the channels' load times behind what it has to save; waiting for the last of them here keeps the
    // next pass from fetching them as well.
    m_services.listings.isScheduledForSaving(delivery.begin()->first);
    for (const auto& [channel, delivered] : delivery) {
        pass.shows += delivered.count;
        if (delivered.isStored)
            pass.missing.erase(channel);
    }
    tellOfDelivery(delivery);
}

void UpdateCycle::tellOfDelivery(const Delivery& delivery)
{
    constexpr std::size_t channelsAtOnce = 16;
    std::unordered_map<ObjectId, ShowList> firstShows;
    const auto tell = [&] {
        m_mainBlocks.async([this, lists = std::exchange(firstShows, {})] { m_observer.delivered(lists); });
    };
    for (const auto& [channel, delivered] : delivery) {
        firstShows[channel] = delivered.firstShows;
        if (firstShows.size() == channelsAtOnce)
            tell();
    }
    if (!firstShows.empty())
        tell();
    m_mainBlocks.async([this] { m_observer.deliveryEnded(); });
}

void UpdateCycle::setLoading(const ChannelItems& items, bool loading) const
{
    for (const ChannelItem& item : items) {
        if (const auto channel = m_services.channels.channelWithChannelId(item.channel))
            channel->setLoading(loading);
    }
}

} // namespace vidora
