#include "store/TVListings.h"

#include "platform/Log.h"
#include "store/ShowUpdates.h"

namespace vidora {

TVListings::TVListings(Surroundings surroundings, PopularRefresh popularRefresh)
    : m_surroundings(std::move(surroundings))
    , m_popularRefresh(std::move(popularRefresh))
    , m_listingsDictionaryAccessQueue(
          DispatchQueue::concurrent(QStringLiteral("ostrel.listings.access"), QualityOfService::Default, waitingRank))
    , m_fileIOQueue(
          DispatchQueue::serial(QStringLiteral("ostrel.listings.file.io"), QualityOfService::Background, waitingRank))
{
    m_surroundings.followed.syncAlarms();
    std::vector<ObjectId> channels = m_surroundings.channels.selected();
    channels.push_back(ObjectId::popular());
    m_listingsDictionaryAccessQueue->barrierAsync([this, channels = std::move(channels)] { load(channels); });
}

TVListings::~TVListings()
{
    m_compounding.wait(); // whose blocks need channels and icons, which go after the store
    // Blocks of the first queue put blocks into the second, never the reverse.
    m_listingsDictionaryAccessQueue->barrierSync([] {});
    m_fileIOQueue->sync([] {});
}

void TVListings::load(const std::vector<ObjectId>& channels)
{
    ListingsDictionary loaded;
    const auto serialQueue = DispatchQueue::serial(QStringLiteral("ostrel.serialQueue"));
    DispatchGroup group;
    for (const ObjectId& channel : channels) {
        group.async(DispatchQueue::global(QualityOfService::UserInitiated), [this, &loaded, &serialQueue, channel] {
            SharedShowTable list = ShowTable::openFile(listingsPath(channel), m_surroundings.clock.now());
            if (channel == ObjectId::popular())
                loadPopular(list, loaded);
            else if (list && !list->isEmpty())
                serialQueue->sync([&] { loaded.set(channel, std::move(list)); });
            else
                m_surroundings.channels.unload(channel);
        });
    }
    group.wait();
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary = std::move(loaded); });
    saveAllShowsWithUpdatePopular(false);
}

/// Every show of it: the list is short, and always looked at.
void TVListings::loadPopular(const SharedShowTable& list, ListingsDictionary& loaded)
{
    auto shows = std::make_shared<const ShowList>(list ? list->shows() : ShowList());
    if (!shows->empty() && !list->isDamaged())
        loaded.setPopular(std::move(shows));
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
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary.merge(m_surroundings.clock.now()); });
    if (!updatePopular)
        return;
    // At the end of a pass, not for each of its documents: all lists are looked through.
    const auto lists = dictionary();
    for (const auto& [channel, list] : lists->lists())
        list->forgetReleased();
    if (m_popularRefresh)
        m_popularRefresh(lists);
}

void TVListings::storeList(const ObjectId& channel, SharedShowList list)
{
    const bool isShared = list.use_count() > 1; // nobody else can come to a list that is held here alone
    m_listingsDictionaryAccessQueue->barrierAsync([this, channel, table = ShowTable::make(*list, isShared)] {
        changeDictionary([&](ListingsDictionary& dictionary) { dictionary.set(channel, table); });
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

void TVListings::replaceList(const ObjectId& channel, const ListChange& change)
{
    const SharedShowTable list = dictionary()->list(channel);
    const SharedShowTable changed = list ? change(*list) : nullptr;
    if (!changed)
        return;
    changeDictionary([&](ListingsDictionary& dictionary) { dictionary.set(channel, changed); });
    saveAllShowsWithUpdatePopular(false);
    addToSaveSchedule(channel);
}

void TVListings::updateIMDBForChannel(const ObjectId& channel, const QString& identificator,
                                      TVListingsCategory category, std::optional<URL> url,
                                      std::optional<Pictures> pictureURLs)
{
    m_listingsDictionaryAccessQueue->barrierAsync(
        [this, channel, identificator, category, url = std::move(url), pictureURLs = std::move(pictureURLs)] {
            replaceList(channel, [&](const ShowTable& list) {
                return listWithIMDB(list, identificator, category, url, pictureURLs);
            });
        });
}

void TVListings::updateDescriptionForEntry(std::shared_ptr<const TVEntry> entry,
                                           std::shared_ptr<const TVEntrySupplementalData> extra,
                                           std::optional<Pictures> pictures)
{
    m_listingsDictionaryAccessQueue->barrierAsync(
        [this, entry = std::move(entry), extra = std::move(extra), pictures = std::move(pictures)] {
            replaceList(entry->channel(),
                        [&](const ShowTable& list) { return listWithDescription(list, entry, extra, pictures); });
        });
}

SharedShowList TVListings::popularShows() const
{
    return dictionary()->popular();
}

void TVListings::setPopularShows(SharedShowList shows)
{
    if (!shows)
        return;
    bool changed = false;
    changeDictionary([&](ListingsDictionary& dictionary) {
        changed = !dictionary.popular() || !isEqualToShowList(*dictionary.popular(), *shows);
        if (changed)
            dictionary.setPopular(shows);
    });
    if (changed)
        addToSaveSchedule(ObjectId::popular());
}

void TVListings::listingsStored()
{
    // A synchronisation reads the merged list, and must find the new shows there however soon its turn comes.
    saveAllShows();
    m_surroundings.followed.setSynchronized(false);
    onMain([this] {
        if (m_surroundings.application.isInBackground())
            m_surroundings.application.synchronizeSettings();
        m_surroundings.followed.syncAlarms();
    });
}

void TVListings::read(std::function<void(const ListingsDictionary&, Instant now)> query)
{
    m_listingsDictionaryAccessQueue->async([this, query = std::move(query)] {
        const auto lists = dictionary();
        query(*lists, m_surroundings.clock.now());
        for (const auto& [channel, list] : lists->lists()) {
            if (list->isDamaged())
                dropDamagedList(channel, list);
        }
    });
}

void TVListings::dropDamagedList(const ObjectId& channel, const SharedShowTable& list)
{
    m_listingsDictionaryAccessQueue->barrierAsync([this, channel, list] {
        if (dictionary()->list(channel) != list)
            return; // it was dropped or replaced meanwhile
        Log::line(QStringLiteral("the list of %1 is damaged").arg(channel.hex()));
        changeDictionary([&](ListingsDictionary& dictionary) { dictionary.remove(channel); });
        saveAllShowsWithUpdatePopular(false);
        m_surroundings.channels.unload(channel);
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
