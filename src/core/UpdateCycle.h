#pragma once

#include "core/ChannelCatalogue.h"
#include "core/TVChannels.h"
#include "listings/Endpoints.h"
#include "listings/HTTPUserAgent.h"
#include "listings/ListingParser.h"
#include "listings/ListingSources.h"
#include "listings/PageFetcher.h"
#include "platform/Application.h"
#include "platform/BlockOwner.h"
#include "platform/Clock.h"
#include "platform/DispatchQueue.h"
#include "store/TVListings.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vidora {

/// Who watches a pass: a progress bar, a screen. All calls come on the main queue, in the order of events.
class UpdateObserver
{
public:
    virtual ~UpdateObserver() = default;
    /// `channels` need data.
    virtual void passStarted(std::size_t channels) = 0;
    /// One source of these channels is about to be fetched.
    virtual void fetching(const std::vector<ObjectId>& channels) = 0;
    /// A source delivered the lists, each cut to as many upcoming shows as a row of the home screen holds. Of a source
    /// of many channels a few at a time, so that the main thread is soon free again.
    virtual void delivered(const std::unordered_map<ObjectId, ShowList>& lists) = 0;
    /// All lists of a source have been handed over.
    virtual void deliveryEnded() {}
    /// `shows` were read in the whole pass; `failed` channels had no source that delivered.
    virtual void passEnded(std::size_t shows, const std::vector<ObjectId>& failed) = 0;
};

/// The update pass: the only place from which listings are fetched. It decides which channels need data, groups them by
/// the documents to be fetched, fetches these one after the other, and has them parsed into the store. Channels whose
/// earlier source delivered are passed over for their later ones.
class UpdateCycle
{
public:
    /// All that a pass needs; everything outlives it.
    struct Services
    {
        const Clock& clock;
        Random& random;
        const Endpoints& endpoints;
        const ChannelData& channelData;
        TVChannels& channels;
        TVListings& listings;
        ListingParser& parser;
        PageFetcher& fetcher;
        HTTPUserAgent& userAgent;
        Application& application;
        DispatchQueue& checkAndUpdateAllChannelsQueue;
        DispatchQueue& loadQueue;
        std::function<std::uint8_t()> showCount; ///< asked on any thread
    };

    UpdateCycle(Services services, UpdateObserver& observer);
    /// Ends the passes, and waits for the document at which the running one is. Main thread.
    ~UpdateCycle();
    UpdateCycle(const UpdateCycle&) = delete;
    UpdateCycle& operator=(const UpdateCycle&) = delete;

    /// Starts a pass and returns at once. Passes never overlap: a second one looks at the channels when its turn has
    /// come, and finds little to do. Main thread.
    void checkAndUpdateAllChannels();
    /// The running pass takes no further document, and those that wait fetch nothing; what has come stays. For the end
    /// of the process; observers are told as ever. Any thread.
    void end() { m_isEnding = true; }

private:
    /// What a document brought: of each channel's list the shows that screens look at first, how many it has, and
    /// whether the store has it, which takes no list of the past.
    struct Delivered
    {
        ShowList firstShows;
        std::size_t count;
        bool isStored;
    };
    using Delivery = std::unordered_map<ObjectId, Delivered>;

    struct URLSetHash
    {
        std::size_t operator()(const URLSet& urls) const;
    };
    struct Source
    {
        ObjectId channel;
        QString sourceId;
    };
    struct Pass;

    void beginPass();
    void run(const std::unordered_map<ObjectId, int>& showCounts);
    static void addTo(std::vector<Source>& group, Source source);
    void collectWhatIsNeeded(Pass& pass, const std::unordered_map<ObjectId, int>& showCounts);
    void collect(Pass& pass, const ObjectId& channel);
    ChannelItems neededOf(const Pass& pass, const URLSet& urls) const;
    void update(Pass& pass, const URLSet& urls);
    Pages fetch(const URLSet& urls, PageOutcome& last);
    /// What came of it, for the log.
    QString parse(Pass& pass, const ChannelItems& needed, const Pages& pages);
    void publish(Pass& pass, const Delivery& delivery);
    void tellOfDelivery(const Delivery& delivery);
    void setLoading(const ChannelItems& items, bool loading) const;

    const Services m_services;
    UpdateObserver& m_observer;
    BlockOwner m_mainBlocks;
    DispatchGroup m_passes;       ///< asked for and not over yet
    std::atomic<int> m_asked = 0; ///< how many these are
    std::atomic<bool> m_isEnding = false;
};

} // namespace vidora
