#include "platform/NetworkAlerts.h"

#include "platform/DispatchQueue.h"
#include "platform/Localized.h"

namespace vidora {

namespace {

constexpr std::int64_t quietSeconds = 60;

Alert alertFor(const URLError& error)
{
    return {error.localizedFailureReason.isEmpty() ? localized("Unable to establish connection to remote server")
                                                   : error.localizedFailureReason,
            error.localizedRecoverySuggestion.isEmpty() ? localized("Check your Internet connection.")
                                                        : error.localizedRecoverySuggestion,
            {AlertAction{localized("OK"), {}}}};
}

} // namespace

NetworkAlerts::NetworkAlerts(const Clock& clock, Present present)
    : m_clock(clock)
    , m_present(std::move(present))
{
}

void NetworkAlerts::noRemoteHostAlert(const URLError& error)
{
    ++m_failures;
    const std::int64_t now = unixSeconds(m_clock.now());
    std::int64_t last = m_lastAlert;
    // Of several requests that fail at once only the one whose time is stored may speak.
    if (now - last <= quietSeconds || !m_lastAlert.compare_exchange_strong(last, now))
        return;
    m_mainBlocks.async([present = m_present, alert = alertFor(error)] {
        if (present)
            present(alert);
    });
}

void NetworkAlerts::alertedNow()
{
    m_lastAlert = unixSeconds(m_clock.now());
}

} // namespace vidora
