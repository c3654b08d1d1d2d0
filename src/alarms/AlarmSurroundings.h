#pragma once

#include "alarms/Alarms.h"
#include "alarms/ShowCounters.h"
#include "alarms/SilentHours.h"
#include "alarms/TVShows.h"
#include "calendar/EventStore.h"
#include "platform/Clock.h"
#include "platform/UserDefaults.h"
#include "store/StoreSurroundings.h"

namespace vidora {

// What the alarms ask of the folders behind them, in their own terms.

/// The user's channels, as far as alarms look at them. Any thread.
class AlarmChannels
{
public:
    virtual ~AlarmChannels() = default;
    virtual bool anyIsSelected() const = 0;
    /// The "Title" of a channel of the catalogue.
    virtual std::optional<QString> titleOfChannel(const ObjectId& channel) const = 0;
    /// A channel of the catalogue with this "Title".
    virtual std::optional<ObjectId> channelWithTitle(const QString& title) const = 0;
    /// Whether what is missing from the channel's list is known not to be on: the channel is selected, and neither
    /// being loaded nor in need of it.
    virtual bool isFresh(const ObjectId& channel) const = 0;
};

/// Who shows favourites and alarms. Called on the main thread; `favoritesUpdated` on the thread that adds a favourite.
class AlarmScreens
{
public:
    virtual ~AlarmScreens() = default;
    virtual void favoritesUpdated() = 0;
    virtual void notificationsSynched() = 0;
    virtual void updateBadge() = 0;
};

/// All that the alarms work with; everything outlives them.
struct AlarmSurroundings
{
    const Clock& clock;
    TVShows& shows;
    Alarms& alarms;
    SilentHours& silentHours;
    ShowCounters& counters;
    EventStore& eventStore;
    UserDefaults& defaults;
    KeyValueStore& keyValueStore;
    ApplicationLife& application;
    const AlarmChannels& channels;
    AlarmScreens& screens;
    QString scheme;        ///< the application's own: an event whose address has it is ours
    bool readOnly = false; ///< another process owns the calendar: it is only looked at
    /// What this device marks its events with. Events of other devices are theirs to move and to remove.
    QString deviceMark = {};
};

} // namespace vidora
