#pragma once

#include "content/ObjectId.h"
#include "platform/Instant.h"

#include <QSet>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace vidora {

// What the store asks of the folders behind it, in its own terms. They implement it; all operations may be called on
// any thread unless they say otherwise, and none may wait for the store's queues or for the main queue.

/// The user's channels: which are selected, how they are shown, and their load state.
class StoreChannels
{
public:
    virtual ~StoreChannels() = default;
    /// The selected channels in the user's order.
    virtual std::vector<ObjectId> selected() const = 0;
    /// How many shows of a channel the home screen shows, 1 to 255.
    virtual int showCount() const = 0;
    /// File name of a channel's icon; nothing for a channel that is unknown or has none.
    virtual std::optional<QString> iconName(const ObjectId& channel) const = 0;
    /// Forgets that the channel was loaded and deletes its list file, so that it is fetched again.
    virtual void unload(const ObjectId& channel) = 0;
    /// Notes when the channel's list was loaded; nothing happens for a channel that is not selected.
    virtual void setTimeLoaded(const ObjectId& channel, Instant time) = 0;
};

/// What the user follows: favourites, and the alarms, which follow the lists.
class FollowedShows
{
public:
    virtual ~FollowedShows() = default;
    /// The titles of all favourites, in lower case.
    virtual QSet<QString> lowercasedFavoriteNames() const = 0;
    /// False: the lists have changed since the last synchronisation of the alarms.
    virtual void setSynchronized(bool isSynchronized) = 0;
    /// Queues a synchronisation and returns.
    virtual void syncAlarms() = 0;
};

/// The life of the process.
class ApplicationLife
{
public:
    using Task = std::uint64_t;
    virtual ~ApplicationLife() = default;
    /// Main thread.
    virtual bool isInBackground() const = 0;
    /// Brings the settings to the disk.
    virtual void synchronizeSettings() = 0;
    /// Keeps the process alive until `endBackgroundTask`, or until time is up: then `expired` is called, on any thread.
    virtual Task beginBackgroundTask(std::function<void()> expired) = 0;
    virtual void endBackgroundTask(Task task) = 0;
};

} // namespace vidora
