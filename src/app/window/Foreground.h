#pragma once

#include "platform/Clock.h"

#include <QObject>

#include <functional>
#include <optional>

class QWindow;

namespace vidora {

/// Judges by what window, session and machine tell whether the application stands in front of the user, and calls what
/// is due when that changes. It begins in front, just activated. Main thread.
///
/// The application is away while its window is minimised or hidden, the session is locked or the machine asleep, and
/// becomes active when it is back. A window that merely has no focus may still be looked at: coming back to it is an
/// activation after a while only, so that switching between windows doesn't start an update each time; and what is
/// pending is written once it has been left alone for long.
class Foreground
{
public:
    struct Handlers
    {
        std::function<void()> becameActive, enteredBackground;
        std::function<void()> leftAlone; ///< in sight, but without focus for `longAbsence`
        std::function<void()> significantTimeChange;
    };
    static constexpr Seconds shortAbsence{60};
    static constexpr Seconds longAbsence{300};

    /// The clock is the machine's, whatever moment the guide is shown for, and outlives this object.
    Foreground(const Clock& clock, Handlers handlers);

    void setShown(bool isShown);
    void setFocused(bool isFocused);
    void setLocked(bool isLocked);
    void setAsleep(bool isAsleep);
    /// To be called every minute or so.
    void minutePassed();
    /// It is midnight, or the clock or the zone was set. The next activation notices by itself while it is away.
    void timeChanged();

private:
    bool isInFront() const { return m_isShown && !m_isLocked && !m_isAsleep; }
    void change(bool& state, bool value);
    bool isAwayFor(Seconds absence) const;
    void activate();

    const Clock& m_clock;
    const Handlers m_handlers;
    bool m_isShown = true, m_isLocked = false, m_isAsleep = false;
    std::optional<Instant> m_leftAt; ///< when focus was lost, or the activation without focus
    bool m_isFocused = true, m_isLeftAlone = false;
};

/// Tells a Foreground of a window and its application, as the desktop reports them.
class WindowPresence final : public QObject
{
public:
    /// Both outlive this object.
    WindowPresence(QWindow& window, Foreground& foreground);
};

} // namespace vidora
