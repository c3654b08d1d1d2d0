#pragma once

#include "core/ChannelFace.h"
#include "core/ScreenProtocols.h"
#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "screens/HomePictures.h"
#include "screens/ScreenModel.h"

namespace vidora {

/// What is on now: a section for each selected channel in the user's order, headed by the channel, with the show on air
/// and the next ones below. Follows the update pass channel by channel.
class RootViewController final : public ScreenModel,
                                 public RootScreen,
                                 public NotificationsSynchedDelegate,
                                 public RecolorDelegate,
                                 private PicturedRows
{
public:
    struct Section
    {
        ChannelFace channel;
        QString icon; ///< path; empty for none
        ShowList entries;
        bool hasFailed = false; ///< no source of the channel delivered in the last pass
    };

    /// The delegate outlives the screen.
    explicit RootViewController(VidoraAppDelegate& delegate);

    QString title() const override;
    bool showsUpdateState() const override { return true; }
    std::vector<BarButton> rightBarButtonItems() const override;
    QString placeholder() const override;
    std::size_t numberOfSections() const override { return m_sections.size(); }
    std::size_t numberOfRowsInSection(std::size_t section) const override;
    ScreenRow rowAt(RowPath path) const override;
    void selectRow(RowPath path) override;
    void accessoryTapped(RowPath path) override;
    std::vector<SwipeAction> swipeActions(RowPath path) override;
    bool canRefresh() const override { return true; }
    void refresh() override;
    /// Shows that are over go, the next ones move up.
    void timePassed() override;
    void rowDisplayed(RowPath path) override;
    void viewDidAppear() override;

    void reloadChannel(const ObjectId& channel, const ShowList& entries) override;
    void selectedChannelsChanged() override;
    void setModifiedSelectedChannels(bool modified) override { m_modifiedSelectedChannels = modified; }
    void passEnded(const std::vector<ObjectId>& failed) override;
    bool isLoaded() const override { return isViewLoaded(); }
    void notificationsSynched() override { reloadData(); }
    void recolor() override;

    /// Opens the list of the channels, to jump to one of them.
    void list();

    const std::vector<Section>& sections() const { return m_sections; }
    /// Whether the lists have been asked for, and whether they are here.
    bool channelEntriesLoaded() const { return m_channelEntriesLoaded; }
    bool hasContent() const { return m_hasContent; }

private:
    using Sections = std::vector<Section>;
    /// The channels with their faces, and without shows.
    Sections sectionsOf(const std::vector<ObjectId>& channels) const;
    void show(Sections sections, std::vector<ShowList> entries);
    ScreenRow headerRow(const Section& section) const;
    const Show* showAt(RowPath path) const;
    std::optional<std::size_t> sectionOf(const ObjectId& channel) const;
    void setEntries(std::size_t section, const ShowList& entries);
    void rollOn(std::size_t section, ShowList entries);
    /// Opens the channel's week, once its list is there and unless it is empty.
    void selectedChannelIdentificator(const ChannelFace& channel);
    /// Plays the channel's stream, if it has one.
    void play(const ChannelFace& channel);
    void tryAgain(std::size_t section);
    void chosenInList(const ChannelFace& channel);

    const ShowList* entriesOf(const ObjectId& channel) const override;
    void setDetailedEntries(const ObjectId& channel, const ShowList& entries) override;
    void reloadShow(const ObjectId& channel, const QString& showIdentifier) override;

    VidoraAppDelegate& m_delegate;
    Sections m_sections;
    HomePictures m_pictures;
    bool m_modifiedSelectedChannels = false;
    bool m_channelEntriesLoaded = false;
    bool m_hasContent = false;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
