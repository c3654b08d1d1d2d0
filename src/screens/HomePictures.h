#pragma once

#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "screens/ShowDetailStep.h"

#include <unordered_map>
#include <unordered_set>

namespace vidora {

/// The rows that pictures are fetched for. Main thread.
class PicturedRows
{
public:
    virtual ~PicturedRows() = default;
    /// The shows of a channel as they stand in its rows; null for a channel without a place.
    virtual const ShowList* entriesOf(const ObjectId& channel) const = 0;
    /// The same shows with what their pages told. The rows look as before.
    virtual void setDetailedEntries(const ObjectId& channel, const ShowList& entries) = 0;
    /// The rows of this show look different now.
    virtual void reloadShow(const ObjectId& channel, const QString& showIdentifier) = 0;
};

/// Pictures and details of the shows on the home screen, fetched for what is seen. Main thread.
class HomePictures
{
public:
    /// Both outlive this object.
    HomePictures(VidoraAppDelegate& delegate, PicturedRows& rows);

    /// The picture of a show as far as it is here; one of width 0 for a show that is known to have none.
    std::optional<ShowImage> imageOf(const ObjectId& channel, const Show& show) const;
    /// Keeps a picture that has come.
    void setShowImage(const ShowImage& image, const ObjectId& forChannelID, const QString& showIdentifier);
    /// Forgets the pictures of a channel, whose list has changed: they are asked for anew.
    void forget(const ObjectId& channel);
    /// Forgets the pictures of shows that have left the channel's rows: what is held here stays in memory.
    void forgetGoneShows(const ObjectId& channel);
    /// The same for all channels, those without a place among them.
    void forgetGoneShows();
    /// The show is in sight. Its picture is fetched once a list, whatever comes of it, and what the pages of the
    /// channel's shows tell.
    void displayed(const ObjectId& channel, const Show& show);

private:
    void loadImage(const ObjectId& channel, const Show& show);
    void startDetailStep(const ObjectId& channel);
    void detailsLoaded(const ObjectId& channel, const ShowList& before, const ShowDetailStep::Result& result);

    VidoraAppDelegate& m_delegate;
    PicturedRows& m_rows;
    std::unordered_map<ObjectId, std::unordered_map<QString, ShowImage>> m_showImages;
    std::unordered_map<ObjectId, std::unordered_set<QString>> m_askedPictures; ///< by identifier of the show
    std::unordered_set<ObjectId> m_channelsWithLoadedShowDetails;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
