#pragma once

#include "core/ChannelFace.h"
#include "core/ScreenProtocols.h"
#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "screens/ScreenModel.h"

#include <unordered_map>

namespace vidora {

/// A channel's whole list by days. The one place from which the user can have a channel fetched again.
class ChannelViewController final : public ScreenModel,
                                    public ChannelScreen,
                                    public NotificationsSynchedDelegate,
                                    public RecolorDelegate
{
public:
    /// `entries` in the order of time. The delegate outlives the screen.
    ChannelViewController(VidoraAppDelegate& delegate, ChannelFace channel, const ShowList& entries);

    QString title() const override { return m_channel.title; }
    QString subtitle() const override;
    std::vector<BarButton> rightBarButtonItems() const override;
    std::size_t numberOfSections() const override { return m_sortedGroupKeys.size(); }
    std::size_t numberOfRowsInSection(std::size_t section) const override;
    QString titleForHeaderInSection(std::size_t section) const override { return m_sortedGroupKeys[section]; }
    ScreenRow rowAt(RowPath path) const override;
    void selectRow(RowPath path) override;
    std::vector<SwipeAction> swipeActions(RowPath path) override;
    bool canRefresh() const override { return true; }
    bool isRefreshing() const override { return m_isRefreshing; }
    /// Forgets the channel's list and starts a pass, which fetches it.
    void refresh() override;

    /// Reads the list again, unless the channel is still to be loaded.
    void reloadChannelData() override;
    /// The activity ends also where nothing was found.
    void passEnded(const std::vector<ObjectId>& failed) override;
    void timePassed() override;
    void notificationsSynched() override { reloadData(); }
    void recolor() override;
    void play();

private:
    void initializeContentWithEntriesArray(const ShowList& entries);
    void setRefreshing(bool isRefreshing);
    void updateIfRunOut();
    bool hasShowsAhead() const;
    const Show* showAt(RowPath path) const;

    VidoraAppDelegate& m_delegate;
    const ChannelFace m_channel;
    std::unordered_map<QString, ShowList> m_groups;
    std::vector<QString> m_sortedGroupKeys;
    bool m_isRefreshing = false;
    bool m_hasAskedForUpdate = false; ///< since the list was last as it should be
    BlockOwner m_mainBlocks;
};

} // namespace vidora
