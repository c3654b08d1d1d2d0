#include "platform/NetworkAlerts.h"

#include "platform/DispatchQueue.h"

#include <QCoreApplication>

namespace vidora {

namespace {

constexpr std::int64_t quietSeconds = 60;

QString translated(const char* text)
{
    return QCoreApplication::translate("vidora", text);
}

Alert alertFor(const URLError& error)
{
    static const char* const title = QT_TRANSLATE_NOOP("vidora", "Unable to establish connection to remote server");
    static const char* const message = QT_TRANSLATE_NOOP("vidora", "Check your Internet connection.");
    static const char* const ok = QT_TRANSLATE_NOOP("vidora", "OK");
    return {error.localizedFailureReason.isEmpty() ? translated(title) : error.localizedFailureReason,
            error.localizedRecoverySuggestion.isEmpty() ? translated(message) : error.localizedRecoverySuggestion,
            {AlertAction{translated(ok), {}}}};
}

} // namespace

NetworkAlerts::NetworkAlerts(const Clock& clock, Present present)
    : m_clock(clock)
    , m_present(std::move(present))
{
}

void NetworkAlerts::noRemoteHostAlert(const URLError& error)
{
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
