#pragma once

#include "core/ScreenProtocols.h"
#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "screens/ScreenModel.h"
#include "screens/ShowDetailStep.h"

#include <unordered_map>
#include <unordered_set>

namespace vidora {

/// What is on now: a section for each selected channel in the user's order, headed by the channel, with the show on air
/// and the next ones below. Follows the update pass channel by channel.
class RootViewController final : public ScreenModel,
                                 public RootScreen,
                                 public NotificationsSynchedDelegate,
                                 public RecolorDelegate
{
public:
    /// The delegate outlives the screen.
    explicit RootViewController(VidoraAppDelegate& delegate);

    QString title() const override;
    std::vector<BarButton> rightBarButtonItems() const override;
    QString placeholder() const override;
    std::size_t numberOfSections() const override { return m_channelEntries.size(); }
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
    bool isLoaded() const override { return isViewLoaded(); }
    void notificationsSynched() override { reloadData(); }
    void recolor() override;

    void setShowImage(const ShowImage& image, const ObjectId& forChannelID, const QString& showIdentifier);
    /// Opens the channel's week, once its list is there and unless it is empty.
    void selectedChannelIdentificator(const ObjectId& channel, const QString& title, const QString& channelIconName);
    /// Plays the stream of a channel that has one.
    void play(const ObjectId& channel);
    /// Opens the list of the channels.
    void list();

    const std::vector<ObjectId>& selectedChannelsArray() const { return m_selectedChannelsArray; }
    const std::vector<QString>& channelTitles() const { return m_channelTitles; }
    const std::vector<QString>& channelIconNames() const { return m_channelIconNames; }
    const std::vector<ShowList>& channelEntries() const { return m_channelEntries; }
    bool hasStream(const ObjectId& channel) const { return m_streams.contains(channel); }
    bool hasShows(const ObjectId& channel) const;
    /// Whether the lists have been asked for, and whether they are here.
    bool channelEntriesLoaded() const { return m_channelEntriesLoaded; }
    bool hasContent() const { return m_hasContent; }

protected:
    void viewDidLoad() override;

private:
    struct Headers
    {
        std::vector<QString> titles, icons, iconNames;
    };
    Headers headersOf(const std::vector<ObjectId>& channels) const;
    void showFirstRows();
    void show(const std::vector<ObjectId>& channels, const Headers& headers, std::vector<ShowList> entries);
    ScreenRow headerRow(std::size_t section) const;
    AttributedText updatedText(const ObjectId& channel) const;
    std::optional<double> progressOf(const TVEntry& entry) const;
    const Show* showAt(RowPath path) const;
    std::optional<std::size_t> sectionOf(const ObjectId& channel) const;
    std::optional<ShowImage> imageOf(const ObjectId& channel, const Show& show) const;
    void loadImage(const ObjectId& channel, const Show& show);
    void startDetailStep(const ObjectId& channel);
    void detailsLoaded(const ObjectId& channel, const ShowList& before, const ShowDetailStep::Result& result);
    void reloadShow(const ObjectId& channel, const QString& identifier);
    void setEntries(std::size_t section, const ShowList& entries);
    void rollOn(std::size_t section, ShowList entries);

    VidoraAppDelegate& m_delegate;
    std::vector<ObjectId> m_selectedChannelsArray;
    std::vector<QString> m_channelTitles;
    std::vector<QString> m_channelIcons; ///< paths; empty for none
    std::vector<QString> m_channelIconNames;
    std::vector<ShowList> m_channelEntries;
    std::unordered_map<ObjectId, std::unordered_map<QString, ShowImage>> m_showImages;
    std::unordered_map<ObjectId, URL> m_streams;
    std::unordered_set<ObjectId> m_channelsWithLoadedShowDetails;
    bool m_modifiedSelectedChannels = false;
    bool m_channelEntriesLoaded = false;
    bool m_hasContent = false;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
