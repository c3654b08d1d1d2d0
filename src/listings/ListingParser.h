#pragma once

#include "listings/ChannelItem.h"
#include "listings/Endpoints.h"
#include "platform/Clock.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>

namespace vidora {

/// Where parsed lists go. Implemented by the store.
class ListingReceiver
{
public:
    virtual ~ListingReceiver() = default;
    /// Takes over a channel's new list, sorted by start. Returns at once.
    virtual void storeList(const ObjectId& channel, std::shared_ptr<const ShowList> list) = 0;
    /// Notes that the channel's list differs from its file.
    virtual void addToSaveSchedule(const ObjectId& channel) = 0;
    /// At least one list of a call was stored: alarms are to be synchronised again.
    virtual void listingsStored() = 0;
};

/// The one door through which every provider's document enters the system: it chooses the scanner of the listing type,
/// and applies one clean-up to all lists: sorted, without doubles and placeholders, with ends, without what is over.
class ListingParser
{
public:
    using Result = std::unordered_map<ObjectId, std::shared_ptr<const ShowList>>;

    /// All three outlive the parser.
    ListingParser(const Clock& clock, const Endpoints& endpoints, ListingReceiver& receiver);

    /// `netList`: the channels that these pages serve; `xml`: the pages, in the order of their URLs; `now`: the moment
    /// of the update; `type`: 0 to 11, any other finds nothing. A channel for which nothing was found has no key; one
    /// whose shows are all over has its list in the result, but was not stored.
    ///
    /// A page that turns out faulty ends the pages: those ahead of it are used. Types 0, 1, 2, 3, 9 and 11 let
    /// exceptions out, and then nothing was stored for any channel. Called on `loadQueue`; two calls never overlap.
    Result netList(const ChannelItems& netList, const Pages& xml, Instant now, std::uint32_t type);
    /// The same, told list by list, just ahead of its storing: lists that the caller does not keep are let go of one by
    /// one, so that they and what the store makes of them are never in memory all at once.
    using Found = std::function<void(const ObjectId& channel, const std::shared_ptr<const ShowList>& list)>;
    void netList(const ChannelItems& netList, const Pages& xml, Instant now, std::uint32_t type, const Found& found);

private:
    const Clock& m_clock;
    const Endpoints& m_endpoints;
    ListingReceiver& m_receiver;
};

} // namespace vidora
