#pragma once

#include "app/CommandLine.h"
#include "app/SampleRegionProcess.h"
#include "calendar/CalendarAccounts.h"
#include "core/OwnGuideSession.h"
#include "core/VidoraAppDelegate.h"
#include "platform/BlockOwner.h"
#include "platform/Clock.h"
#include "platform/EmbeddedPublicDatabase.h"
#include "platform/HomeLock.h"
#include "platform/MemoryWarnings.h"
#include "platform/NetworkURLSession.h"
#include "platform/Signals.h"
#include "platform/StandardFolders.h"

#include <atomic>
#include <memory>
#include <optional>

namespace vidora {

/// The machine that a command runs on: its folders, its clock, its network, and the delegate over them. Main thread.
class Device
{
public:
    enum class Access
    {
        Read, ///< the command changes nothing: beside another process on this home it works with what is there
        Write ///< it waits until it is the only one
    };

    /// Shows why nothing happens yet. Called ahead of the waiting, during which the event loop runs.
    using Waiting = std::function<void(const QString& reason)>;

    /// `wantsNetwork`: the command may fetch. Starts the sample region when there is no guide of the user's own.
    /// `waiting`: told, beside standard error, when another process has to end first.
    Device(const CommandLine& line, Access access, bool wantsNetwork, const Waiting& waiting = {});
    ~Device();

    VidoraAppDelegate& delegate() { return *m_delegate; }
    const Clock& clock() const { return *m_clock; }
    const StandardFolders& folders() const { return m_folders; }
    /// The network as it is; the delegate's own treats the imported guide apart.
    URLSession& network() { return m_network; }
    /// What its requests wait for. Connected until somebody who knows says otherwise.
    Connectivity& connectivity() { return m_connectivity; }
    /// The user's accounts on calendar servers; null where there are no calendars.
    CalendarAccounts* calendarAccounts() { return m_calendarAccounts.get(); }
    bool hasOwnGuide() const;
    /// Whether what a command changes can be kept.
    bool keepsChanges() const { return m_lock->outcome() == HomeLock::Outcome::First; }
    /// The signal that asked the process to end, 0 without one. What fetches or waits then fails at once, so that a
    /// command comes to its end by itself. Any thread.
    int endSignal() const { return m_endSignal; }
    bool isEnding() const { return m_endSignal != 0; }
    /// Called on the main thread at the first such signal. May be empty.
    std::function<void()> endRequested;
    /// Makes every request to providers fail and every pause end at once; the running pass takes no further document,
    /// and no other one begins. Any thread.
    void endRequests();
    /// Commits what is pending and what has come, and ends everything that runs. False when something outlasts the
    /// grace period, such as a provider's document that is read for minutes: everything is on the disk then, but to
    /// destroy this object would take longer still.
    bool quit();
    /// Quits, and gives the status with which the process is to end. Doesn't return where something outlasts the grace
    /// period: the process ends then and there.
    int end(int status);

    /// Where the application's own files lie: beside the program where it is installed, else in the source tree.
    static QString resources();
    static QString ownCatalogue(const StandardFolders& folders);
    /// The folder whose folders are calendars, to be shared with other calendar programs.
    static QString calendars(const StandardFolders& folders);
    /// The file of the accounts on calendar servers.
    static QString calendarMirrors(const StandardFolders& folders);
    static QString calendarAccounts(const StandardFolders& folders);
    static QString ownIcons(const StandardFolders& folders);
    /// Addresses of providers that the user sets by hand.
    static QString ownEndpoints(const StandardFolders& folders);
    static constexpr QLatin1String scheme{"vidora"};

private:
    void lockHome(Access access, const Waiting& waiting);
    void openCalendars(Access access);
    void waitForCalendarServers();
    void watchSystem();
    void endBySignal(int signal);
    Endpoints readEndpoints(bool wantsNetwork, std::optional<Instant> clock, const std::optional<URL>& guide);

    StandardFolders m_folders;
    std::unique_ptr<Clock> m_clock;
    SystemRandom m_random;
    SystemSleeper m_sleeper, m_calendarSleeper;
    Connectivity m_connectivity;
    NetworkURLSession m_network;
    NetworkURLSession m_calendarNetwork;
    DNSServiceLookup m_calendarServices;
    std::unique_ptr<OwnGuideSession> m_guideSession;
    std::unique_ptr<HomeLock> m_lock;
    SampleRegionProcess m_region;
    std::unique_ptr<SecretStore> m_secrets;
    std::unique_ptr<CombinedEventStore> m_eventStore;
    std::unique_ptr<CalendarAccounts> m_calendarAccounts;
    std::unique_ptr<EmbeddedPublicDatabase> m_publicDatabase;
    std::unique_ptr<VidoraAppDelegate> m_delegate;
    std::atomic<int> m_endSignal = 0;
    const SystemClock m_machineClock; ///< whatever moment the guide is shown for
    std::unique_ptr<MemoryWarnings> m_memoryWarnings;
    std::unique_ptr<Signals> m_signals;
    BlockOwner m_mainBlocks;
};

} // namespace vidora
