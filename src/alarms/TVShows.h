#pragma once

#include "alarms/Favorite.h"
#include "platform/DispatchQueue.h"
#include "platform/KeyValueStore.h"

#include <QHash>
#include <QSet>

#include <atomic>
#include <mutex>

namespace vidora {

/// The user's favourites: in memory, in the file "favorites.plist" of the documents folder, and in the key-value store
/// for the user's other devices. Any thread, guarded by the concurrent queue "favorites"; not to be called from a block
/// of that queue. No operation fails: what can't be read is absent, what can't be written stays as it was.
class TVShows final
{
public:
    enum class Access
    {
        Write,
        Read ///< another process owns the files: changes stay in memory
    };

    /// The key-value store outlives this object.
    TVShows(QString documentsFolder, KeyValueStore& keyValueStore, Access access = Access::Write);
    ~TVShows();

    /// The favourites in the order in which they were added; nothing as long as there are none and never were. Reads
    /// the file at the first call, which then passes for a change: file and key-value store are written anew.
    std::optional<Favorites> favorites();
    /// Replaces the list. Returns when the memory is up to date; file and key-value store follow soon after. Nothing
    /// happens for a list of the same objects in the same order.
    void setFavorites(Favorites favorites);
    /// The titles as they were given.
    QSet<QString> favoriteNames() const;
    /// Whole titles, whatever their case.
    bool containsFavoriteNamed(const QString& name) const;
    /// The titles in lower case, for work that asks about many.
    QSet<QString> lowercasedFavoriteNames() const;
    /// Lead time of the favourite's alarm in minutes; negative: it has none. Nothing for a title that is no favourite.
    std::optional<int> scheduleTimeForFavoriteNamed(const QString& name) const;
    /// Returns once all that was set so far has reached the file and the key-value store.
    void waitForWrites() const;

    static constexpr QLatin1String keyInStore{"Favorites"};

private:
    void replace(Favorites favorites);
    void write(const Favorites& favorites, std::uint64_t generation);

    const QString m_path;
    KeyValueStore& m_keyValueStore;
    const Access m_access;
    const std::shared_ptr<DispatchQueue> m_queue;

    std::optional<Favorites> m_favorites;
    QSet<QString> m_names;
    QSet<QString> m_lowercasedNames;
    QHash<QString, int> m_minutes; ///< by lower-case title; of two favourites of one title the first counts
    std::uint64_t m_generation = 0;
    std::atomic<bool> m_fileIsUnreadable = false; ///< to be moved aside before the next write

    std::mutex m_writeMutex; ///< held while the file is written
    std::uint64_t m_writtenGeneration = 0;
};

} // namespace vidora
