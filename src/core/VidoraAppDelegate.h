#pragma once

#include "alarms/AlarmRequests.h"
#include "alarms/DeviceMark.h"
#include "calendar/MemoryEventStore.h"
#include "core/AlarmMarks.h"
#include "core/AlarmServices.h"
#include "core/ChannelCatalogue.h"
#include "core/LoadPauses.h"
#include "core/ScreenProtocols.h"
#include "core/ScreenWalk.h"
#include "core/ShowServices.h"
#include "core/StoreServices.h"
#include "core/TVChannels.h"
#include "core/UpdateCycle.h"
#include "listings/Endpoints.h"
#include "listings/HTTPUserAgent.h"
#include "listings/ListingParser.h"
#include "listings/PageFetcher.h"
#include "platform/Application.h"
#include "platform/BlockOwner.h"
#include "platform/CachedURLSession.h"
#include "platform/Clock.h"
#include "platform/KeyValueStore.h"
#include "platform/NetworkActivity.h"
#include "platform/NetworkAlerts.h"
#include "platform/StandardFolders.h"
#include "platform/URLCache.h"
#include "platform/URLSession.h"
#include "platform/UserDefaults.h"
#include "platform/ViewControllers.h"
#include "store/TVListings.h"
#include "store/TVStationIcons.h"

#include <atomic>
#include <memory>

namespace vidora {

/// What the process gives the delegate: the machine behind the seams, and where things lie. Two delegates with
/// different environments are two devices in one process.
struct Environment
{
    StandardFolders folders;
    QString catalogue; ///< path of Data.plist
    QString iconFolder;
    Endpoints endpoints;
    QString scheme; ///< the application's own URL scheme
    const Clock& clock;
    Random& random;
    Sleeper& sleeper;
    URLSession& network;
    bool isPad = false;
    bool readOnly = false;                    ///< another process owns the home: nothing is written
    EventStore* eventStore = nullptr;         ///< null: the user has no calendar
    PublicDatabase* publicDatabase = nullptr; ///< null: nobody counts
};

/// The root object: creates the central objects at launch, holds them for the whole run, is the only receiver of the
/// life-cycle events, and spreads a change of data or settings to the open screens. Main thread, unless said otherwise.
class VidoraAppDelegate final : public UpdateObserver, private AlarmScreens
{
public:
    explicit VidoraAppDelegate(Environment environment);
    ~VidoraAppDelegate() override;

    /// Builds catalogue, selection and store, and shows the tab bar with what is on disk. Once, ahead of everything
    /// else.
    void applicationDidFinishLaunching();
    /// Reads the settings, refreshes the screens and starts a pass.
    void applicationDidBecomeActive();
    void applicationSignificantTimeChange() { applicationDidBecomeActive(); }
    /// Commits what is pending. The writing goes on in a background task.
    void applicationDidEnterBackground();
    /// Commits what is pending, with the screens as they are: the user may still look at them.
    void commitPending();
    void applicationDidReceiveMemoryWarning();
    /// Waits for what must not be cut off, for as long as the grace period lasts. False when that was too short: to
    /// destroy this object would take longer still.
    bool applicationWillTerminate();

    /// Replaces the selection, with all that follows from it: lists of channels that are no longer selected go, alarms
    /// and screens follow, and the tabs are turned off and on with the last and the first channel. Who adds channels
    /// starts a pass.
    void changeSelection(const ChannelIds& selection);
    /// Brings the lists of all selected channels up to date. Returns at once.
    void checkAndUpdateAllChannels();
    /// A pass was asked for and none has ended since.
    bool isUpdating() const { return m_isUpdating; }
    /// A list in sight has run out or grown stale, and no activation is to come. Starts a pass, unless one is under way
    /// or nobody looks. Whether it did.
    bool listRanOut();
    /// The running pass takes no further document, and no other one begins. For the end of the process.
    void endUpdates() { m_updateCycle->end(); }
    /// Shows a number on the application's icon, 0 for none.
    std::function<void(int)> applicationIconBadge;
    /// Called on the main thread when the first request begins and when the last one has ended.
    std::function<void(bool visible)> networkActivityIndicator;
    /// Told of every pass from now on, beside the screens. Null ends that.
    void setUpdateObserver(UpdateObserver* observer) { m_updateObserver = observer; }

    /// Stops all parsing, and with it the running pass, until the token goes. Not held longer than one main-queue
    /// answer of the store needs.
    LoadPauses::Token pauseLoading() { return m_loadPauses.pause(m_loadQueue); }
    /// Plays a channel's stream. Nothing happens without a screen of streams.
    void playURL(const URL& url);
    /// Null: there is none any more.
    void setStreams(StreamScreen* streams) { m_streams = streams; }
    /// Who knows more of shows than the lists; all outlive the screens.
    void setShowServices(const ShowServices& services) { m_showServices = services; }
    const ShowServices& showServices() const { return m_showServices; }
    /// What a swipe on a show's row offers.
    std::vector<SwipeAction> swipeActionsConfigurationForEntry(const Show& show, ViewController& screen) const;

    /// Reads the setting for colours, and selects the tab to begin with: the last one without a selection. Called at
    /// launch, and by those who change the tabs.
    void setup();
    /// A phone or a pad, by the size of the window: pads have one more tab, ahead of the others.
    bool isPad() const { return m_isPad; }
    void setPad(bool isPad) { m_isPad = isPad; }
    /// Shows the count of alarms on the icon and on the tab of the schedule.
    void updateBadge() override;
    /// Selects the last tab and turns all others off: without channels there is nothing to show.
    void disableTabs();
    void enableTabs();
    void favoritesUpdated() override { m_screens.favoritesUpdated(); }
    void recolor() { m_screens.recolor(); }
    void notificationsSynched() override;

    TVListings& listings() { return *m_listings; }
    TVChannels& channels() { return *m_channels; }
    AlarmEngine& alarmEngine() { return *m_alarmEngine; }
    AlarmRequests& alarmRequests() { return *m_alarmRequests; }
    TVShows& shows() { return m_shows; }
    SilentHours& silentHours() { return m_silentHours; }
    EventStore& eventStore() { return m_eventStore; }
    TVStationIcons& icons() { return *m_icons; }
    const ChannelData& channelData() const { return m_channelData; }
    TabBarController& tabBarController() { return m_tabBarController; }
    UserDefaults& defaults() { return m_defaults; }
    KeyValueStore& keyValueStore() { return m_keyValueStore; }
    Application& application() { return m_application; }
    PageFetcher& fetcher() { return *m_fetcher; }
    /// The network behind the shared response cache. Any thread but the main one.
    URLSession& session() { return m_session; }
    HTTPUserAgent& userAgent() { return m_userAgent; }
    NetworkActivity& networkActivity() { return m_networkActivity; }
    NetworkAlerts& networkAlerts() { return m_networkAlerts; }
    const Environment& environment() const { return m_environment; }
    const QString& scheme() const { return m_environment.scheme; }
    DispatchQueue& loadQueue() { return *m_loadQueue; }
    DispatchQueue& loadSchedulesQueue() { return *m_loadSchedulesQueue; }

    bool imagesEnabled() const { return m_imagesEnabled; }
    bool showBgImages() const { return m_showBgImages; }
    bool colorizedShows() const { return m_colorizedShows; }
    /// How many current shows a row of the home screen holds. Any thread.
    std::uint8_t showCount() const { return m_showCount; }
    /// Seconds after which a list is stale: the setting "data_update", a day without it. Any thread.
    double automaticUpdateInterval() const;

private:
    void loadCatalogue();
    void makeAlarms();
    void makeStore();
    void pruneSelection();
    void finishAlarmsInBackground();
    void readSettings();
    void settingsChanged();

    // UpdateObserver
    void passStarted(std::size_t channels) override;
    void fetching(const std::vector<ObjectId>& channels) override;
    void delivered(const std::unordered_map<ObjectId, ShowList>& lists) override;
    void deliveryEnded() override;
    void passEnded(std::size_t shows, const std::vector<ObjectId>& failed) override;

    const Environment m_environment;
    Application m_application;
    UserDefaults m_defaults;
    KeyValueStore m_keyValueStore;
    MemoryEventStore m_noCalendar{{}, AuthorizationStatus::Denied};
    EventStore& m_eventStore;
    TVShows m_shows;
    Alarms m_alarms;
    SilentHours m_silentHours;
    ShowCounters m_showCounters;
    URLCache m_cache;
    CachedURLSession m_session;
    HTTPUserAgent m_userAgent;
    NetworkAlerts m_networkAlerts;
    NetworkActivity m_networkActivity;
    TabBarController m_tabBarController;
    ScreenWalk m_screens;

    std::shared_ptr<DispatchQueue> m_checkAndUpdateAllChannelsQueue, m_loadQueue, m_loadSchedulesQueue;
    std::unique_ptr<TVStationIcons> m_icons;
    ChannelData m_channelData;
    std::unique_ptr<TVChannels> m_channels;
    std::unique_ptr<StoreServices> m_storeServices;
    std::unique_ptr<AlarmServices> m_alarmServices;
    std::unique_ptr<AlarmEngine> m_alarmEngine;
    std::unique_ptr<AlarmRequests> m_alarmRequests;
    std::unique_ptr<AlarmMarks> m_alarmMarks;
    std::unique_ptr<TVListings> m_listings; ///< behind the engine, whose queries it runs
    std::unique_ptr<PageFetcher> m_fetcher;
    std::unique_ptr<ListingParser> m_parser;
    std::unique_ptr<UpdateCycle> m_updateCycle;

    std::atomic<std::uint8_t> m_showCount = 4;
    bool m_imagesEnabled = true, m_showBgImages = true, m_colorizedShows = false;
    bool m_firstTabSelected = false;
    bool m_settingsAreDue = false;
    bool m_isUpdating = false;
    bool m_isPad;
    ShowServices m_showServices;
    LoadPauses m_loadPauses;
    UpdateObserver* m_updateObserver = nullptr;
    StreamScreen* m_streams = nullptr;
    BlockOwner m_mainBlocks; ///< last, so that no block outlives what it refers to
};

} // namespace vidora
