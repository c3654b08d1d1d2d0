#include "store/TVListings.h"

#include "store/ShowArchive.h"
#include "store/ShowUpdates.h"

namespace vidora {

TVListings::TVListings(Surroundings surroundings, PopularRefresh popularRefresh)
    : m_surroundings(std::move(surroundings))
    , m_popularRefresh(std::move(popularRefresh))
    , m_listingsDictionaryAccessQueue(
          DispatchQueue::concurrent(QStringLiteral("ostrel.listings.access"), QualityOfService::Default, waitingRank))
    , m_fileIOQueue(
          DispatchQueue::serial(QStringLiteral("ostrel.listings.file.io"), QualityOfService::Background, waitingRank))
    , m_isLoadHeld(m_surroundings.loading == Loading::Held)
{
    if (m_isLoadHeld)
        m_listingsDictionaryAccessQueue->suspend();
    m_surroundings.followed.syncAlarms();
    std::vector<ObjectId> channels = m_surroundings.channels.selected();
    channels.push_back(ObjectId::popular());
    m_listingsDictionaryAccessQueue->barrierAsync([this, channels = std::move(channels)] { load(channels); });
}

TVListings::~TVListings()
{
    startLoading();
    m_compounding.wait(); // whose blocks need channels and icons, which go after the store
    // Blocks of the first queue put blocks into the second, never the reverse.
    m_listingsDictionaryAccessQueue->barrierSync([] {});
    m_fileIOQueue->sync([] {});
}

void TVListings::startLoading()
{
    if (m_isLoadHeld.exchange(false))
        m_listingsDictionaryAccessQueue->resume();
}

void TVListings::load(const std::vector<ObjectId>& channels)
{
    const QualityOfService priority =
        m_surroundings.loading == Loading::Held ? QualityOfService::Background : QualityOfService::UserInitiated;
    ListingsDictionary loaded;
    const auto serialQueue = DispatchQueue::serial(QStringLiteral("ostrel.serialQueue"));
    DispatchGroup group;
    for (const ObjectId& channel : channels) {
        group.async(DispatchQueue::global(priority), [this, &loaded, &serialQueue, channel] {
            auto list = std::make_shared<const ShowList>(
                cutThePast(ShowArchive::unarchiveObjectWithFile(listingsPath(channel)), m_surroundings.clock.now()));
            if (!list->empty())
                serialQueue->sync([&] { loaded.set(channel, std::move(list)); });
            else if (channel != ObjectId::popular())
                m_surroundings.channels.unload(channel);
        });
    }
    group.wait();
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary = std::move(loaded); });
    saveAllShowsWithUpdatePopular(false);
}

QString TVListings::listingsFileFromChannelIdentificator(const ObjectId& channel)
{
    return channel.hex() + QStringLiteral(".plist");
}

QString TVListings::listingsPath(const ObjectId& channel) const
{
    return m_surroundings.cachesDirectory + QLatin1Char('/') + listingsFileFromChannelIdentificator(channel);
}

std::shared_ptr<const ListingsDictionary> TVListings::dictionary() const
{
    const std::lock_guard lock(m_dictionaryMutex);
    return m_listingsDictionary;
}

void TVListings::changeDictionary(const Change& change)
{
    std::shared_ptr<const ListingsDictionary> old; // let go of when the lock is open again: it may hold whole lists
    const std::lock_guard lock(m_dictionaryMutex);
    auto changed = std::make_shared<ListingsDictionary>(*m_listingsDictionary);
    change(*changed);
    old = std::exchange(m_listingsDictionary, std::move(changed));
}

void TVListings::saveAllShowsWithUpdatePopular(bool updatePopular)
{
    const std::shared_ptr<const MergedShows> merged = dictionary()->merge(m_surroundings.clock.now());
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary.setMerged(merged); });
    if (updatePopular && m_popularRefresh)
        m_popularRefresh(merged->shows);
}

void TVListings::storeList(const ObjectId& channel, SharedShowList list)
{
    m_listingsDictionaryAccessQueue->barrierAsync([this, channel, list = std::move(list)] {
        changeDictionary([&](ListingsDictionary& dictionary) { dictionary.set(channel, list); });
    });
}

void TVListings::saveAllShows()
{
    m_listingsDictionaryAccessQueue->barrierAsync([this] { saveAllShowsWithUpdatePopular(false); });
}

void TVListings::updatePopularList()
{
    m_listingsDictionaryAccessQueue->barrierAsync([this] { saveAllShowsWithUpdatePopular(true); });
}

void TVListings::removeListingsForChannel(const ObjectId& channel)
{
    m_listingsDictionaryAccessQueue->barrierAsync([this, channel] {
        changeDictionary([&](ListingsDictionary& dictionary) { dictionary.remove(channel); });
        saveAllShowsWithUpdatePopular(true);
    });
}

void TVListings::replaceList(const ObjectId& channel, ShowList list)
{
    auto shared = std::make_shared<const ShowList>(std::move(list));
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary.set(channel, std::move(shared)); });
    saveAllShowsWithUpdatePopular(false);
    addToSaveSchedule(channel);
}

void TVListings::updateIMDBForChannel(const ObjectId& channel, const QString& identificator,
                                      TVListingsCategory category, std::optional<URL> url,
                                      std::optional<Pictures> pictureURLs)
{
    m_listingsDictionaryAccessQueue->barrierAsync(
        [this, channel, identificator, category, url = std::move(url), pictureURLs = std::move(pictureURLs)] {
            const auto lists = dictionary();
            if (lists->contains(channel))
                replaceList(channel, listWithIMDB(lists->list(channel), identificator, category, url, pictureURLs));
        });
}

void TVListings::updateDescriptionForEntry(std::shared_ptr<const TVEntry> entry,
                                           std::shared_ptr<const TVEntrySupplementalData> extra,
                                           std::optional<Pictures> pictures)
{
    m_listingsDictionaryAccessQueue->barrierAsync([this, entry = std::move(entry), extra = std::move(extra),
                                                   pictures = std::move(pictures)] {
        const auto lists = dictionary();
        std::optional<ShowList> changed = listWithDescription(lists->list(entry->channel()), entry, extra, pictures);
        if (changed)
            replaceList(entry->channel(), std::move(*changed));
    });
}

SharedShowList TVListings::popularShows() const
{
    const auto lists = dictionary();
    const auto found = lists->lists().find(ObjectId::popular());
    return found == lists->lists().end() ? nullptr : found->second;
}

void TVListings::setPopularShows(SharedShowList shows)
{
    if (!shows)
        return;
    bool changed = false;
    changeDictionary([&](ListingsDictionary& dictionary) {
        changed = !dictionary.contains(ObjectId::popular()) ||
                  !isEqualToShowList(dictionary.list(ObjectId::popular()), *shows);
        if (changed)
            dictionary.set(ObjectId::popular(), shows);
    });
    if (changed)
        addToSaveSchedule(ObjectId::popular());
}

void TVListings::listingsStored()
{
    m_surroundings.followed.setSynchronized(false);
    // The synchronisation reads the merged list, and must find the new shows there however soon its turn comes.
    saveAllShows();
    onMain([this] {
        if (m_surroundings.application.isInBackground())
            m_surroundings.application.synchronizeSettings();
        m_surroundings.followed.syncAlarms();
    });
}

void TVListings::onMain(Completion block)
{
    DispatchQueue::main().async([alive = std::weak_ptr(m_alive), block = std::move(block)] {
        if (alive.lock())
            block();
    });
}

} // namespace vidora
