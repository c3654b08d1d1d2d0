#pragma once

#include "content/ObjectId.h"
#include "content/ShowElement.h"
#include "platform/URL.h"

#include <vector>

namespace vidora {

/// What the delegate may ask of the screens that its walk over the tabs meets. A screen implements those that it
/// answers to. All are called on the main thread.

/// A screen whose rows follow the calendar's alarms.
class NotificationsSynchedDelegate
{
public:
    virtual ~NotificationsSynchedDelegate() = default;
    virtual void notificationsSynched() = 0;
};

/// A screen whose rows change their colours with favourites and settings.
class RecolorDelegate
{
public:
    virtual ~RecolorDelegate() = default;
    virtual void recolor() = 0;
};

/// The home screen: one row a selected channel.
class RootScreen
{
public:
    virtual ~RootScreen() = default;
    /// The channel's next shows have changed; at most as many as a row shows.
    virtual void reloadChannel(const ObjectId& channel, const ShowList& entries) = 0;
    virtual void selectedChannelsChanged() = 0;
    /// To be done when the screen loads: it isn't loaded yet.
    virtual void setModifiedSelectedChannels(bool modified) = 0;
    virtual bool isLoaded() const = 0;
    /// A pass is over in which no source of the `failed` channels delivered.
    virtual void passEnded(const std::vector<ObjectId>& failed) = 0;
};

/// The screen of one channel's week.
class ChannelScreen
{
public:
    virtual ~ChannelScreen() = default;
    virtual void reloadChannelData() = 0;
    /// A pass is over in which no source of the `failed` channels delivered.
    virtual void passEnded(const std::vector<ObjectId>& failed) = 0;
};

/// The screen of streams, of which one plays at a time.
class StreamScreen
{
public:
    virtual ~StreamScreen() = default;
    /// Closes the open stream, and opens the one of this address.
    virtual void playURL(const URL& url) = 0;
    /// Goes on with the stream that is open, if any.
    virtual void playOpenStream() = 0;
};

/// A screen of shows of many channels by days.
class CompoundListingsScreen
{
public:
    virtual ~CompoundListingsScreen() = default;
    virtual void reloadData() = 0;
    /// Covers the list until fresh data is there: the application went into the background.
    virtual void showActivity() = 0;
};

} // namespace vidora
