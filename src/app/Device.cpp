#include "app/Device.h"

#include "app/Commands.h"
#include "app/Terminal.h"
#include "calendar/FolderEventStore.h"
#include "core/GuideImport.h"
#include "platform/AtomicFile.h"
#include "platform/KeyringSecretStore.h"
#include "platform/Localized.h"
#include "platform/Log.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <cstdlib>

namespace vidora {

namespace {

constexpr qint64 maximumEndpoints = 1024 * 1024;
constexpr qint64 maximumDocument = 512LL * 1024 * 1024;
constexpr qint64 maximumCalendarAnswer = 64LL * 1024 * 1024;
/// How long a process that ends waits for a word of the calendar servers.
constexpr Milliseconds patienceWithServers = Seconds(5);
constexpr int mostRoundsWithServers = 10;

QByteArray contents(const QString& path)
{
    return AtomicFile::read(path, maximumEndpoints).value_or(QByteArray());
}

StandardFolders foldersOf(const CommandLine& line)
{
    return line.home ? StandardFolders::under(QFileInfo(*line.home).absoluteFilePath()) : StandardFolders::ofUser();
}

std::unique_ptr<Clock> clockOf(const CommandLine& line)
{
    if (line.clock)
        return std::make_unique<FixedClock>(*line.clock);
    return std::make_unique<SystemClock>();
}

// What a process that was killed left half-written. Only the holder of the home's lock may know it for a leftover.
void removeLeftovers(const StandardFolders& folders)
{
    for (const QString& folder : {folders.documents, folders.caches, folders.settings, Device::ownIcons(folders)})
        AtomicFile::removeLeftovers(folder);
    for (const QString& calendars : {Device::calendars(folders), Device::calendarMirrors(folders)}) {
        QDirIterator folder(calendars, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks,
                            QDirIterator::Subdirectories);
        while (folder.hasNext())
            AtomicFile::removeLeftovers(folder.next());
    }
}

} // namespace

QString Device::resources()
{
    const QString installed = QCoreApplication::applicationDirPath() + QLatin1String("/../share/vidora");
    return QFileInfo::exists(installed) ? installed : QStringLiteral(VIDORA_RESOURCES);
}

QString Device::ownCatalogue(const StandardFolders& folders)
{
    return folders.documents + QLatin1String("/Data.plist");
}
QString Device::calendars(const StandardFolders& folders)
{
    return folders.documents + QLatin1String("/calendars");
}
QString Device::calendarMirrors(const StandardFolders& folders)
{
    return folders.documents + QLatin1String("/calendar-mirrors");
}
QString Device::calendarAccounts(const StandardFolders& folders)
{
    return folders.settings + QLatin1String("/calendar-accounts.json");
}
QString Device::ownIcons(const StandardFolders& folders)
{
    return folders.documents + QLatin1String("/icons");
}
QString Device::ownEndpoints(const StandardFolders& folders)
{
    return folders.settings + QLatin1String("/endpoints.json");
}

bool Device::hasOwnGuide() const
{
    return QFile::exists(ownCatalogue(m_folders));
}

Device::Device(const CommandLine& line, Access access, bool wantsNetwork, const Waiting& waiting)
    : m_folders(foldersOf(line))
    , m_clock(clockOf(line))
    , m_network(maximumDocument, {}, &m_connectivity)
    , m_calendarNetwork(maximumCalendarAnswer)
{
    m_folders.make();
    lockHome(access, waiting);
    const bool own = hasOwnGuide();
    const auto guide = own ? GuideImport::addressOfCatalogue(ownCatalogue(m_folders)) : std::nullopt;
    if (own && !guide)
        say(localized("The catalogue of your guide can't be read; import the guide again."));
    m_guideSession = std::make_unique<OwnGuideSession>(m_network, guide);
    // A look at another moment must not change the user's own calendars, where the past would pass for the future.
    if (!line.clock || line.home)
        openCalendars(access);
    m_publicDatabase =
        std::make_unique<EmbeddedPublicDatabase>(m_folders.documents + QLatin1String("/public.sqlite"), *m_clock);
    m_delegate = std::make_unique<VidoraAppDelegate>(Environment{
        m_folders, own ? ownCatalogue(m_folders) : resources() + QLatin1String("/Data.plist"),
        own ? ownIcons(m_folders) : resources() + QLatin1String("/icons"),
        readEndpoints(wantsNetwork, line.clock, guide), QString(scheme), *m_clock, m_random, m_sleeper, *m_guideSession,
        false, m_lock->outcome() == HomeLock::Outcome::Second, m_eventStore.get(), m_publicDatabase.get()});
    m_delegate->applicationDidFinishLaunching();
    watchSystem();
}

Device::~Device() = default;

/// Commands that only show wait for no server.
void Device::openCalendars(Access access)
{
    m_secrets = std::make_unique<FallbackSecretStore>(
        std::make_unique<KeyringSecretStore>(),
        std::make_unique<FileSecretStore>(m_folders.documents + QLatin1String("/calendar-passwords.json")));
    m_eventStore = std::make_unique<CombinedEventStore>();
    m_eventStore->addSource(
        QStringLiteral("device"),
        std::make_shared<FolderEventStore>(calendars(m_folders), localized("This device"), *m_clock, m_random));
    m_calendarAccounts = std::make_unique<CalendarAccounts>(
        CalendarAccountSurroundings{calendarAccounts(m_folders), calendarMirrors(m_folders), *m_secrets,
                                    m_calendarNetwork, *m_clock, m_random, m_calendarSleeper, &m_calendarServices,
                                    access == Access::Read || m_lock->outcome() != HomeLock::Outcome::First},
        *m_eventStore);
}

void Device::lockHome(Access access, const Waiting& waiting)
{
    m_lock = std::make_unique<HomeLock>(m_folders.documents);
    if (m_lock->outcome() == HomeLock::Outcome::First)
        removeLeftovers(m_folders);
    if (m_lock->outcome() == HomeLock::Outcome::Unavailable && access == Access::Write)
        say(localized("%1 can't be written: nothing will be kept.").arg(m_folders.documents));
    if (m_lock->outcome() != HomeLock::Outcome::Second)
        return;
    const QString holder = m_lock->holder() ? QString::number(*m_lock->holder()) : QStringLiteral("?");
    if (access == Access::Read) {
        say(localized("Another vidora (process %1) is using this home; showing what it has.").arg(holder));
        return;
    }
    const QString reason = localized("Another vidora (process %1) is using this home; waiting for it.").arg(holder);
    say(reason);
    if (waiting)
        waiting(reason);
    bool taken = false;
    DispatchQueue::global(QualityOfService::UserInitiated).async([&] {
        m_lock->waitForTurn();
        DispatchQueue::main().async([&] { taken = true; });
    });
    DispatchQueue::runMain([&] { return taken; });
    removeLeftovers(m_folders);
}

Endpoints Device::readEndpoints(bool wantsNetwork, std::optional<Instant> clock, const std::optional<URL>& guide)
{
    Endpoints endpoints = Endpoints::fromJson(contents(resources() + QLatin1String("/endpoints.json")), {});
    if (wantsNetwork && !hasOwnGuide()) {
        if (const auto region = m_region.start(clock))
            endpoints = Endpoints::fromJson(*region, endpoints);
        else
            say(localized("The sample region could not be started; --log says why."));
    }
    if (guide)
        endpoints.tvpcAddress = guide->text();
    return Endpoints::fromJson(contents(ownEndpoints(m_folders)), endpoints);
}

void Device::watchSystem()
{
    m_memoryWarnings =
        std::make_unique<MemoryWarnings>([this] { m_delegate->applicationDidReceiveMemoryWarning(); }, m_machineClock);
    m_signals = std::make_unique<Signals>([this](int signal) { endBySignal(signal); });
}

void Device::endBySignal(int signal)
{
    Log::line(QStringLiteral("ending by signal %1").arg(signal));
    m_endSignal = signal;
    endRequests();
    m_calendarNetwork.invalidateAndCancel();
    m_calendarSleeper.invalidateAndWake();
    if (endRequested)
        endRequested();
    // A second request ends the process where it stands: files are whole at every moment.
    m_mainBlocks.async([this] { m_signals.reset(); });
}

void Device::endRequests()
{
    m_delegate->endUpdates();
    m_network.invalidateAndCancel();
    m_sleeper.invalidateAndWake();
}

int Device::end(int status)
{
    const bool isOver = quit();
    const int ended = isEnding() ? ExitStatus::endedBySignal + endSignal() : status;
    if (!isOver) {
        Log::line(QStringLiteral("ending in the midst of a document"));
        std::fflush(nullptr);
        std::_Exit(ended);
    }
    return ended;
}

bool Device::quit()
{
    endRequests();
    // What a pass brought last may still be on its way to the calendar.
    bool calendarIsSettled = false;
    DispatchQueue::main().async([&] { m_delegate->alarmEngine().whenIdle([&] { calendarIsSettled = true; }); });
    DispatchQueue::runMain([&] { return calendarIsSettled; });
    m_delegate->applicationDidEnterBackground();
    if (!m_delegate->applicationWillTerminate())
        return false;
    if (m_calendarAccounts)
        waitForCalendarServers();
    return true;
}

/// What was changed goes out ahead of the end, unless a server keeps silent: then it waits for the next time.
void Device::waitForCalendarServers()
{
    bool isOver = false;
    AlarmEngine& engine = m_delegate->alarmEngine();
    // What came in may call for a synchronisation, and that for another exchange.
    const std::function<void(int)> wait = [&](int rounds) {
        engine.whenIdle([&, rounds] {
            m_calendarAccounts->whenExchanged([&, rounds] {
                isOver = engine.isIdle() || rounds == 1;
                if (!isOver)
                    wait(rounds - 1);
            });
        });
    };
    wait(mostRoundsWithServers);
    const BlockOwner blocks;
    const std::function<void(int)> watch = [&](int answers) {
        blocks.after(patienceWithServers, [&, answers] {
            const int now = m_calendarAccounts->answerCount();
            if (now != answers) {
                watch(now);
                return;
            }
            Log::line(QStringLiteral("calendar servers keep silent; what they don't have waits"));
            m_calendarNetwork.invalidateAndCancel();
        });
    };
    watch(m_calendarAccounts->answerCount());
    DispatchQueue::runMain([&] { return isOver; });
}

} // namespace vidora
