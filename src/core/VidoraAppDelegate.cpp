#include "core/VidoraAppDelegate.h"

#include "content/TVEntry.h"
#include "core/Tabs.h"
#include "platform/Log.h"
#include "platform/Settings.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace vidora {

namespace {

constexpr Milliseconds delayOfPlaying{100}; // the system pauses players as it puts the application away
constexpr Milliseconds delayOfSettings{300};
const QString filteredCatalogue = QStringLiteral("5b65e9d23afbe36684bdfe2c.plist");

Milliseconds intervalForCache(double seconds)
{
    constexpr double bound = 1e9;
    const double usable = std::isfinite(seconds) ? seconds : setting::updateInterval.usualText().toDouble();
    return Milliseconds(static_cast<std::int64_t>(std::clamp(usable, 0.0, bound) * 1000));
}

} // namespace

VidoraAppDelegate::VidoraAppDelegate(Environment environment)
    : m_environment(std::move(environment))
    , m_defaults(m_environment.folders.settings + QLatin1String("/settings.json"))
    , m_keyValueStore(m_environment.folders.documents + QLatin1String("/cloud.sqlite"))
    , m_eventStore(m_environment.eventStore ? *m_environment.eventStore : m_noCalendar)
    , m_shows(m_environment.folders.documents, m_keyValueStore,
              m_environment.readOnly ? TVShows::Access::Read : TVShows::Access::Write)
    , m_alarms(m_environment.folders.caches, m_environment.readOnly)
    , m_silentHours(m_keyValueStore)
    , m_showCounters(m_environment.publicDatabase)
    , m_cache(m_environment.clock, [this] { return intervalForCache(automaticUpdateInterval()); })
    , m_session(m_environment.network, m_cache)
    , m_userAgent(m_environment.random)
    , m_networkAlerts(m_environment.clock, [this](Alert alert) { m_tabBarController.present(std::move(alert)); })
    , m_networkActivity([this](bool visible) {
        if (networkActivityIndicator)
            networkActivityIndicator(visible);
    })
    , m_screens(m_tabBarController)
    , m_isPad(m_environment.isPad)
{
    if (!m_environment.readOnly)
        m_defaults.onChange(
            [changed = m_mainBlocks.guarded([this] { settingsChanged(); })] { DispatchQueue::main().async(changed); });
}

VidoraAppDelegate::~VidoraAppDelegate()
{
    // A pass that is still running refers to everything here, and must not wait for a screen.
    m_loadPauses.endAll();
    m_updateCycle.reset();
}

void VidoraAppDelegate::applicationDidFinishLaunching()
{
    TVEntry::detectAlphabet(m_environment.clock.now());
    m_loadQueue = DispatchQueue::serial(QStringLiteral("ostrel.tv.loadQueue"), QualityOfService::Background,
                                        TVListings::waitingRank - 1);
    m_loadSchedulesQueue = DispatchQueue::serial(QStringLiteral("ostrel.tv.loadSchedulesQueue"));
    m_checkAndUpdateAllChannelsQueue = DispatchQueue::serial(QStringLiteral("ostrel.tv.checkAndUpdateAllChannels"),
                                                             QualityOfService::Default, TVListings::waitingRank - 2);
    m_icons = std::make_unique<TVStationIcons>(m_environment.iconFolder);
    loadCatalogue();
    if (!m_environment.readOnly)
        m_mainBlocks.async([this] { pruneSelection(); });
    makeAlarms();
    makeStore();
    readSettings(); // a program that only shows what there is, is never activated
    setup();
    updateBadge();
}

void VidoraAppDelegate::loadCatalogue()
{
    const CatalogueFiles files{m_environment.catalogue, m_environment.iconFolder,
                               m_environment.folders.caches + QLatin1Char('/') + filteredCatalogue,
                               m_environment.readOnly};
    m_channelData =
        loadChannelData(files, [this](const QString& name) { return m_icons->iconNamed(name).has_value(); });
    m_channels =
        std::make_unique<TVChannels>(m_environment.folders.documents,
                                     ChannelAging{m_environment.clock, m_environment.folders.caches,
                                                  [this] { return automaticUpdateInterval(); }, m_environment.readOnly},
                                     m_channelData, m_keyValueStore);
}

void VidoraAppDelegate::makeAlarms()
{
    m_storeServices =
        std::make_unique<StoreServices>(*m_channels, m_channelData, m_showCount, m_application, m_defaults);
    m_alarmServices = std::make_unique<AlarmServices>(*m_channels, m_channelData);
    const AlarmSurroundings surroundings{
        .clock = m_environment.clock,
        .shows = m_shows,
        .alarms = m_alarms,
        .silentHours = m_silentHours,
        .counters = m_showCounters,
        .eventStore = m_eventStore,
        .defaults = m_defaults,
        .keyValueStore = m_keyValueStore,
        .application = *m_storeServices,
        .channels = *m_alarmServices,
        .screens = *this,
        .scheme = m_environment.scheme,
        .readOnly = m_environment.readOnly,
        .deviceMark = deviceMark(m_environment.folders.documents, m_environment.random, m_environment.readOnly),
    };
    m_alarmEngine = std::make_unique<AlarmEngine>(surroundings);
    m_alarmRequests = std::make_unique<AlarmRequests>(surroundings, *m_alarmEngine);
    m_alarmMarks = std::make_unique<AlarmMarks>(*m_alarmEngine, m_shows);
    m_showServices.marks = m_alarmMarks.get();
    m_shows.favorites();
}

void VidoraAppDelegate::makeStore()
{
    m_listings = std::make_unique<TVListings>(TVListings::Surroundings{
        .clock = m_environment.clock,
        .cachesDirectory = m_environment.folders.caches,
        .channels = *m_storeServices,
        .icons = *m_icons,
        .followed = *m_alarmEngine,
        .application = *m_storeServices,
        .scheme = m_environment.scheme,
    });
    m_alarmEngine->setListings(*m_listings);
    m_fetcher =
        std::make_unique<PageFetcher>(m_session, m_cache, m_environment.sleeper, m_networkActivity, m_networkAlerts);
    m_parser = std::make_unique<ListingParser>(m_environment.clock, m_environment.endpoints, *m_listings);
    m_updateCycle = std::make_unique<UpdateCycle>(
        UpdateCycle::Services{
            .clock = m_environment.clock,
            .random = m_environment.random,
            .endpoints = m_environment.endpoints,
            .channelData = m_channelData,
            .channels = *m_channels,
            .listings = *m_listings,
            .parser = *m_parser,
            .fetcher = *m_fetcher,
            .userAgent = m_userAgent,
            .application = m_application,
            .checkAndUpdateAllChannelsQueue = *m_checkAndUpdateAllChannelsQueue,
            .loadQueue = *m_loadQueue,
            .showCount = [this] { return showCount(); },
        },
        *this);
}

void VidoraAppDelegate::pruneSelection()
{
    ChannelIds selection = m_channels->selected();
    if (std::erase_if(selection, [this](const ObjectId& id) { return !m_channelData.contains(id); }) == 0)
        return;
    changeSelection(selection);
    m_screens.selectedChannelsChanged();
}

void VidoraAppDelegate::changeSelection(const ChannelIds& selection)
{
    const ChannelIds before = m_channels->selected();
    const std::unordered_set<ObjectId> kept(selection.begin(), selection.end());
    ChannelIds removed = before;
    std::erase_if(removed, [&](const ObjectId& id) { return kept.contains(id); });
    if (!removed.empty())
        m_alarmEngine->setSynchronized(false);
    m_channels->setSelected(selection);
    for (const ObjectId& id : removed)
        m_listings->removeListingsForChannel(id);
    if (selection.empty())
        disableTabs();
    else if (before.empty())
        enableTabs();
    m_screens.selectionModified();
    if (removed.empty())
        return;
    m_alarmEngine->syncAlarms();
    m_screens.reloadData();
}

void VidoraAppDelegate::setup()
{
    m_colorizedShows = setting::colorizedShows.flag(m_defaults);
    if (m_isPad)
        m_tabBarController.setEnabled(tabIndex(TabKind::AllShows, m_isPad), true);
    if (m_channels->selected().empty()) {
        disableTabs();
    } else if (!m_firstTabSelected && !m_tabBarController.items().empty()) {
        m_firstTabSelected = true;
        m_tabBarController.setSelectedIndex(tabIndex(TabKind::Currently, m_isPad));
    }
}

void VidoraAppDelegate::readSettings()
{
    m_imagesEnabled = setting::pictures.flag(m_defaults);
    m_showBgImages = setting::backgroundPictures.flag(m_defaults);
    const auto count = static_cast<std::uint8_t>(m_defaults.integerForKey(setting::showCount.name()));
    m_showCount = count == 0 ? static_cast<std::uint8_t>(setting::showCount.usualText().toInt()) : count;
}

void VidoraAppDelegate::applicationDidBecomeActive()
{
    m_application.setApplicationState(Application::State::Active);
    m_networkAlerts.alertedNow();
    TVEntry::detectAlphabet(m_environment.clock.now());
    readSettings();
    m_screens.activated();
    m_alarmEngine->syncAlarms();
    checkAndUpdateAllChannels();
}

void VidoraAppDelegate::applicationDidEnterBackground()
{
    m_application.setApplicationState(Application::State::Background);
    commitPending();
    m_screens.enteredBackground();
    m_mainBlocks.after(delayOfPlaying, [this] {
        if (m_streams)
            m_streams->playOpenStream();
    });
}

void VidoraAppDelegate::commitPending()
{
    m_alarmEngine->commit();
    finishAlarmsInBackground();
    if (m_environment.readOnly)
        return;
    m_defaults.synchronize();
    m_listings->commitFiles();
}

// A process may be killed at any moment. Changes come in bursts, and one write serves all of them.
void VidoraAppDelegate::settingsChanged()
{
    if (std::exchange(m_settingsAreDue, true))
        return;
    m_mainBlocks.after(delayOfSettings, [this] {
        m_settingsAreDue = false;
        m_defaults.synchronize();
    });
}

void VidoraAppDelegate::finishAlarmsInBackground()
{
    const auto task = m_application.beginBackgroundTask(QStringLiteral("alarms"), {});
    // Behind the synchronisations that were asked for and wait for their turn on the main queue.
    m_mainBlocks.async([this, task] {
        m_alarmEngine->whenIdle(m_mainBlocks.guarded([this, task] { m_application.endBackgroundTask(task); }));
    });
}

void VidoraAppDelegate::applicationDidReceiveMemoryWarning()
{
    m_alarmEngine->commit();
    if (!m_environment.readOnly) {
        if (m_application.applicationState() == Application::State::Background)
            m_defaults.synchronize();
        m_listings->commitFiles();
    }
    m_listings->dropSearchIndex();
    const qint64 capacity = m_cache.memoryCapacity();
    m_cache.setMemoryCapacity(0);
    m_cache.setMemoryCapacity(capacity);
}

bool VidoraAppDelegate::applicationWillTerminate()
{
    m_alarmEngine->commit();
    if (!m_environment.readOnly)
        m_defaults.synchronize();
    const bool isFinished = m_application.finishBackgroundTasks();
    m_channels->waitForWrites();
    m_shows.waitForWrites();
    return isFinished;
}

void VidoraAppDelegate::checkAndUpdateAllChannels()
{
    m_isUpdating = true;
    m_updateCycle->checkAndUpdateAllChannels();
}

bool VidoraAppDelegate::listRanOut()
{
    if (m_isUpdating || m_application.applicationState() == Application::State::Background)
        return false;
    checkAndUpdateAllChannels();
    return true;
}

void VidoraAppDelegate::playURL(const URL& url)
{
    if (m_streams)
        m_streams->playURL(url);
}

void VidoraAppDelegate::updateBadge()
{
    const int count = m_alarmEngine->eventCount();
    if (applicationIconBadge)
        applicationIconBadge(count);
    m_tabBarController.setBadgeValue(tabIndex(TabKind::Schedule, m_isPad),
                                     count == 0 ? std::nullopt : std::optional(QString::number(count)));
}

void VidoraAppDelegate::disableTabs()
{
    const std::size_t count = m_tabBarController.items().size();
    if (count == 0)
        return;
    m_tabBarController.setSelectedIndex(count - 1);
    for (std::size_t index = 0; index + 1 < count; ++index)
        m_tabBarController.setEnabled(index, false);
}

void VidoraAppDelegate::enableTabs()
{
    for (std::size_t index = 0; index < m_tabBarController.items().size(); ++index) {
        if (index != m_tabBarController.selectedIndex())
            m_tabBarController.setEnabled(index, true);
    }
}

std::vector<SwipeAction> VidoraAppDelegate::swipeActionsConfigurationForEntry(const Show& show,
                                                                              ViewController& screen) const
{
    return m_showServices.marks ? m_showServices.marks->swipeActions(show, screen) : std::vector<SwipeAction>();
}

void VidoraAppDelegate::notificationsSynched()
{
    updateBadge();
    m_mainBlocks.async([this] { m_screens.notificationsSynched(); });
}

double VidoraAppDelegate::automaticUpdateInterval() const
{
    return setting::updateInterval.number(m_defaults);
}

void VidoraAppDelegate::passStarted(std::size_t channels)
{
    if (m_updateObserver)
        m_updateObserver->passStarted(channels);
}

void VidoraAppDelegate::fetching(const std::vector<ObjectId>& channels)
{
    if (m_updateObserver)
        m_updateObserver->fetching(channels);
}

void VidoraAppDelegate::delivered(const std::unordered_map<ObjectId, ShowList>& lists)
{
    if (m_updateObserver)
        m_updateObserver->delivered(lists);
    if (m_application.applicationState() == Application::State::Background)
        return;
    for (const auto& [channel, entries] : lists)
        m_screens.reloadChannel(channel, entries);
}

void VidoraAppDelegate::deliveryEnded()
{
    if (m_updateObserver)
        m_updateObserver->deliveryEnded();
    if (m_application.applicationState() != Application::State::Background)
        m_screens.reloadData();
}

void VidoraAppDelegate::passEnded(std::size_t shows, const std::vector<ObjectId>& failed)
{
    m_isUpdating = false;
    if (m_updateObserver)
        m_updateObserver->passEnded(shows, failed);
    m_screens.passEnded(failed);
}

} // namespace vidora
