#include "alarms/TVShows.h"

#include "platform/AtomicFile.h"
#include "platform/Log.h"

#include <QCborArray>

namespace vidora {

namespace {

// Tens of thousands of favourites; a file beyond this size is none.
constexpr qint64 maximumFileSize = 8 * 1024 * 1024;

} // namespace

TVShows::TVShows(QString documentsFolder, KeyValueStore& keyValueStore, Access access)
    : m_path(documentsFolder + QLatin1String("/favorites.plist"))
    , m_keyValueStore(keyValueStore)
    , m_access(access)
    , m_queue(DispatchQueue::concurrent(QStringLiteral("favorites")))
{
}

TVShows::~TVShows()
{
    waitForWrites();
}

std::optional<Favorites> TVShows::favorites()
{
    std::optional<Favorites> loaded;
    m_queue->sync([&] { loaded = m_favorites; });
    if (loaded)
        return loaded;
    const auto bytes = AtomicFile::read(m_path, maximumFileSize);
    if (!bytes)
        return std::nullopt;
    const auto stored = unarchivedFavorites(*bytes);
    m_queue->barrierSync([&] {
        m_fileIsUnreadable = !stored;
        if (stored && !m_favorites) // a list set meanwhile is newer than the file
            replace(*stored);
        loaded = m_favorites;
    });
    return loaded;
}

void TVShows::setFavorites(Favorites favorites)
{
    m_queue->barrierSync([&] { replace(std::move(favorites)); });
}

void TVShows::replace(Favorites favorites)
{
    const bool isModified = m_favorites != favorites;
    Log::line(
        QStringLiteral("newFavorites: modified=%1").arg(isModified ? QLatin1String("true") : QLatin1String("false")));
    if (!isModified)
        return;
    m_names.clear();
    m_lowercasedNames.clear();
    m_minutes.clear();
    for (const auto& favorite : favorites) {
        m_names.insert(favorite->identificator());
        m_lowercasedNames.insert(favorite->lowercasedIdentificator());
        if (!m_minutes.contains(favorite->lowercasedIdentificator()))
            m_minutes.insert(favorite->lowercasedIdentificator(), favorite->minutes());
    }
    m_favorites = std::move(favorites);
    if (m_access == Access::Read)
        return;
    m_queue->async([this, written = *m_favorites, generation = ++m_generation] { write(written, generation); });
}

void TVShows::write(const Favorites& favorites, std::uint64_t generation)
{
    // Readers go on while a list is written; of two lists the older must not come last.
    const std::lock_guard lock(m_writeMutex);
    if (generation < m_writtenGeneration)
        return;
    m_writtenGeneration = generation;
    if (m_fileIsUnreadable && !AtomicFile::setAside(m_path)) {
        Log::line(QStringLiteral("TVShows: favourites that can't be read are in the way"));
        return;
    }
    m_fileIsUnreadable = false;
    if (AtomicFile::write(m_path, archivedFavorites(favorites), AtomicFile::Access::OwnerOnly).failed()) {
        // What the file does not hold must not reach the other devices either.
        Log::line(QStringLiteral("TVShows: the favourites could not be written"));
        return;
    }
    QCborArray blobs;
    for (const auto& favorite : favorites)
        blobs.append(favorite->encoded().toCborValue().toCbor());
    m_keyValueStore.setObject(blobs, keyInStore);
}

QSet<QString> TVShows::favoriteNames() const
{
    QSet<QString> names;
    m_queue->sync([&] { names = m_names; });
    return names;
}

QSet<QString> TVShows::lowercasedFavoriteNames() const
{
    QSet<QString> names;
    m_queue->sync([&] { names = m_lowercasedNames; });
    return names;
}

bool TVShows::containsFavoriteNamed(const QString& name) const
{
    return lowercasedFavoriteNames().contains(name.toLower());
}

std::optional<int> TVShows::scheduleTimeForFavoriteNamed(const QString& name) const
{
    std::optional<int> minutes;
    m_queue->sync([&] {
        const auto found = m_minutes.constFind(name.toLower());
        if (found != m_minutes.cend())
            minutes = *found;
    });
    return minutes;
}

void TVShows::waitForWrites() const
{
    m_queue->barrierSync([] {});
}

} // namespace vidora
