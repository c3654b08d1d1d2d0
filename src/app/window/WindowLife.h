#pragma once

#include "app/window/Foreground.h"
#include "app/window/LoginSession.h"
#include "app/window/MinuteTicks.h"
#include "platform/SignificantTimeChange.h"

namespace vidora {

class VidoraAppDelegate;

/// Brings to the delegate what happens to the program with a window: activation, background, midnight. Main thread.
class WindowLife
{
public:
    /// All outlive this object. `clock` is the machine's, whatever moment the guide is shown for.
    WindowLife(VidoraAppDelegate& delegate, QWindow& window, const Clock& clock,
               QDBusConnection bus = QDBusConnection::systemBus());

private:
    Foreground m_foreground;
    const WindowPresence m_presence;
    const LoginSession m_session;
    const SignificantTimeChange m_timeChange;
    const MinuteTicks m_minutes;
};

} // namespace vidora
