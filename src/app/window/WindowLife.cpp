#include "app/window/WindowLife.h"

#include "core/VidoraAppDelegate.h"
#include "platform/Log.h"

namespace vidora {

namespace {

Foreground::Handlers handlersOf(VidoraAppDelegate& delegate)
{
    return {[&] {
                Log::line(QStringLiteral("active again"));
                delegate.applicationDidBecomeActive();
            },
            [&] {
                Log::line(QStringLiteral("in the background"));
                delegate.applicationDidEnterBackground();
            },
            [&] { delegate.commitPending(); }, [&] { delegate.applicationSignificantTimeChange(); }};
}

} // namespace

WindowLife::WindowLife(VidoraAppDelegate& delegate, QWindow& window, const Clock& clock, QDBusConnection bus)
    : m_foreground(clock, handlersOf(delegate))
    , m_presence(window, m_foreground)
    , m_session([this](bool isAsleep) { m_foreground.setAsleep(isAsleep); },
                [this](bool isLocked) { m_foreground.setLocked(isLocked); }, std::move(bus))
    , m_timeChange([this] { m_foreground.timeChanged(); })
    , m_minutes(clock, [this] { m_foreground.minutePassed(); })
{
}

} // namespace vidora
