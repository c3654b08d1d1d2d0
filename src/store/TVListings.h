#pragma once

#include "content/TVListingsCategory.h"
#include "listings/ListingParser.h"
#include "platform/AtomicFile.h"
#include "platform/Clock.h"
#include "platform/DispatchQueue.h"
#include "store/CompoundListing.h"
#include "store/ListingsDictionary.h"
#include "store/SearchIndex.h"
#include "store/StoreSurroundings.h"

#include <set>

namespace vidora {

using ShowsByURL = std::unordered_map<URL, Show>;

/// The one store of shows: the list of each channel in memory and in a file, the merged list of all channels, and every
/// query over them.
///
/// The dictionary of lists is changed in barrier blocks of the queue "ostrel.listings.access" and read in its plain
/// blocks, so that a query sees all changes that were asked for before it. Files are written by
/// "ostrel.listings.file.io", and only by `commitFiles`. Operations return at once and may be called on any thread;
/// blocks are called exactly once unless said otherwise, on the queue that is named, which must live until then. Shows
/// that a block is given never change. No operation fails: what can't be read is absent, what can't be written stays as
/// it was.
///
/// "now" is the clock's at the moment when the work of an operation begins.
class TVListings final : public ListingReceiver
{
public:
    /// Of both queues, which may wait for each other; a caller's queue ranks below, or has no rank.
    static constexpr int waitingRank = 3;

    /// All outlive the store.
    struct Surroundings
    {
        const Clock& clock;
        QString cachesDirectory; ///< where the list files lie
        StoreChannels& channels;
        const TVStationIcons& icons;
        FollowedShows& followed;
        ApplicationLife& application;
        QString scheme; ///< of the application's own addresses
        FileLayer& files = FileLayer::system();
    };
    using Completion = std::function<void()>;
    using ShowsBlock = std::function<void(SharedShowList)>;
    using CompoundBlock = std::function<void(const CompoundListing&)>;
    /// `byURL` leads from the address of a broadcast in the application's scheme to its element in the list.
    using URLBlock = std::function<void(SharedShowList shows, std::shared_ptr<const ShowsByURL> byURL)>;
    /// Told of the lists, the merged one among them, when the popular list is to be made anew. Called in a barrier
    /// block: returns at once.
    using PopularRefresh = std::function<void(std::shared_ptr<const ListingsDictionary> lists)>;

    /// Starts an alarm synchronisation and the load of the files of all selected channels and of the popular list. Does
    /// not wait: every query is behind the load. A selected channel without a current show in its file is unloaded.
    explicit TVListings(Surroundings surroundings, PopularRefresh popularRefresh = {});
    /// On the main thread. Waits for what was asked for; blocks for the main queue may still come.
    ~TVListings() override;

    /// "<hex>.plist".
    static QString listingsFileFromChannelIdentificator(const ObjectId& channel);

    // Lists come in.

    /// Puts the list into its form in memory before it returns, and lets go of it.
    void storeList(const ObjectId& channel, SharedShowList list) override;
    /// Marks the channel's list as differing from its file and stamps the channel as loaded now. In the background the
    /// files are committed right away.
    void addToSaveSchedule(const ObjectId& channel) override;
    void listingsStored() override;
    /// Waits for the work queued on the file queue before.
    bool isScheduledForSaving(const ObjectId& channel);
    /// Writes the lists that differ from their files, without what is past. A list that is all past isn't written. A
    /// background task lasts from this call to the end of the writing.
    void commitFiles();
    /// Builds the merged list anew, of the lists and the moment at this call's turn: the first query that looks at it
    /// does the work, so that a call costs next to nothing however often it comes.
    void saveAllShows();
    /// The same, and then refreshes the popular list.
    void updatePopularList();
    /// Forgets the channel's list in memory; its file stays.
    void removeListingsForChannel(const ObjectId& channel);
    /// Puts the film link, and the pictures if given, to every broadcast of this title and category on the channel.
    void updateIMDBForChannel(const ObjectId& channel, const QString& identificator, TVListingsCategory category,
                              std::optional<URL> url, std::optional<Pictures> pictureURLs);
    /// Stores what a show's page gave with the broadcast, unless it has left its list meanwhile.
    void updateDescriptionForEntry(std::shared_ptr<const TVEntry> entry,
                                   std::shared_ptr<const TVEntrySupplementalData> extra,
                                   std::optional<Pictures> pictures);

    /// The popular list at this moment, without waiting for anything; null when there is none.
    SharedShowList popularShows() const;
    /// Takes a new popular list, and schedules it for saving, unless it is null or equal to the present one.
    void setPopularShows(SharedShowList shows);

    // Queries. `priority` is the class of service at which a compound listing is made.

    /// The shows of a channel that have not ended; one that ends now counts.
    void cachedListForChannel(const ObjectId& channel, QualityOfService priority, ShowsBlock mainBlock);
    /// For each selected channel, in order, its next shows up to `showCount`, the one on air first. A channel without a
    /// list is read from its file for this once.
    void onAirShowsWithQueue(DispatchQueue& queue, std::function<void(std::vector<ShowList>)> block);
    /// For each of some channels, in order, its shows that run within a span of time, those that reach into it
    /// included: a window of a time grid. A show without an end counts by its start alone.
    void showsOfChannels(std::vector<ObjectId> channels, Instant from, Instant until, DispatchQueue& queue,
                         std::function<void(std::vector<ShowList>)> block);
    /// For each selected channel how many shows are ahead of it, up to `showCount`.
    void showCountForSelectedChannelsForQueue(DispatchQueue& queue,
                                              std::function<void(std::unordered_map<ObjectId, int>)> withBlock);
    /// Shows with a bit of the mask, of series only if the mask has the bit of series, else of all others.
    void showsWithCategory(TVListingsCategory mask, QualityOfService priority, CompoundBlock mainBlock);
    /// The lists behind special categories: the popular list, shows that start from 19:00 to midnight, or all.
    void allShowsWithCategory(TVListingsCategory category, QualityOfService priority, CompoundBlock mainBlock);
    /// Shows with the pattern in one of their texts, whatever its case, diacritics and alphabet; an empty pattern is in
    /// all. The block is called on the global queue of the class UserInitiated. What makes the next search faster is
    /// kept until `dropSearchIndex`.
    void showsContainingPattern(const QString& pattern, ShowsBlock highPriorityBlock);
    /// Drops what searches keep. To be called when search ends and when memory runs short.
    void dropSearchIndex();
    /// The broadcast with this address in the application's scheme; without one the block is not called.
    void showWithURL(const URL& url, std::function<void(Show)> mainBlock);
    /// Broadcasts of exactly this shown title.
    void showScheduleForTitle(const QString& title, QualityOfService priority, CompoundBlock mainBlock);
    /// Whether there is a broadcast of this raw title that is, or is not, a repeat.
    void broadcastForTitle(const QString& title, bool previouslyShown, std::function<void(bool)> mainBlock);
    /// Broadcasts of favourite titles that have not ended. The block is called in a plain block of the access queue:
    /// it returns soon and asks the store nothing.
    void favoritesScheduleWithBlock(ShowsBlock block);
    void favoritesScheduleWithPriority(QualityOfService priority, CompoundBlock mainBlock);
    /// Broadcasts of favourite titles that have not begun, called back like the above. What
    /// `partialAllowed` says makes no difference: without favourites both answers are empty.
    void favoritesScheduleWithPartialAllowed(bool partialAllowed, URLBlock block);
    /// Groups shows by day on the global queue of the priority; the block is called on the main queue.
    void compoundListingsWithShows(SharedShowList shows, QualityOfService priority, CompoundBlock mainBlock);

private:
    using Change = std::function<void(ListingsDictionary&)>;
    using Query = std::function<ShowList(const ListingsDictionary&, Instant now)>;
    using ListChange = std::function<SharedShowTable(const ShowTable&)>;

    QString listingsPath(const ObjectId& channel) const;
    std::shared_ptr<const ListingsDictionary> dictionary() const;
    /// Changes the dictionary in one step. Readers keep what they have taken.
    void changeDictionary(const Change& change);
    void load(const std::vector<ObjectId>& channels);
    static void loadPopular(const SharedShowTable& list, ListingsDictionary& loaded);
    void saveAllShowsWithUpdatePopular(bool updatePopular);
    /// In a barrier block: replaces a channel's list by a changed one, if there is both.
    void replaceList(const ObjectId& channel, const ListChange& change);
    void writeScheduledFiles();
    void writeFile(const ObjectId& channel, const ListingsDictionary& lists) const;
    /// Runs a query as a reader, with the lists and the moment of its turn. A list that turns out to be damaged goes,
    /// and is fetched again.
    void read(std::function<void(const ListingsDictionary&, Instant now)> query);
    void dropDamagedList(const ObjectId& channel, const SharedShowTable& list);
    /// Runs the block on the main queue, unless the store is gone by then.
    void onMain(Completion block);
    /// The first shows of a list that have not ended.
    static ShowList nextShows(const ShowTable& list, std::size_t count, Instant now);
    /// Runs a query as a reader and makes a compound listing of what it finds.
    void compoundQuery(Query query, QualityOfService priority, CompoundBlock mainBlock);

    const Surroundings m_surroundings;
    const PopularRefresh m_popularRefresh;
    const std::shared_ptr<const bool> m_alive = std::make_shared<const bool>(true);

    mutable std::mutex m_dictionaryMutex; ///< held for a copy or a swap only
    std::shared_ptr<const ListingsDictionary> m_listingsDictionary = std::make_shared<const ListingsDictionary>();
    std::set<ObjectId> m_scheduledForSaving; ///< belongs to m_fileIOQueue
    SearchIndex m_searchIndex;
    DispatchGroup m_compounding; ///< begun on the main thread alone

    const std::shared_ptr<DispatchQueue> m_listingsDictionaryAccessQueue;
    const std::shared_ptr<DispatchQueue> m_fileIOQueue;
};

} // namespace vidora
