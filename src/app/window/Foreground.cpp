#include "app/window/Foreground.h"

#include <QGuiApplication>
#include <QWindow>

namespace vidora {

Foreground::Foreground(const Clock& clock, Handlers handlers)
    : m_clock(clock)
    , m_handlers(std::move(handlers))
{
}

void Foreground::setShown(bool isShown)
{
    change(m_isShown, isShown);
}

void Foreground::setLocked(bool isLocked)
{
    change(m_isLocked, isLocked);
}

void Foreground::setAsleep(bool isAsleep)
{
    change(m_isAsleep, isAsleep);
}

void Foreground::change(bool& state, bool value)
{
    const bool wasInFront = isInFront();
    state = value;
    if (isInFront() == wasInFront)
        return;
    if (wasInFront)
        m_handlers.enteredBackground();
    else
        activate();
}

void Foreground::setFocused(bool isFocused)
{
    if (isFocused == m_isFocused)
        return;
    m_isFocused = isFocused;
    if (!isFocused)
        m_leftAt = m_clock.now();
    else if (isInFront() && isAwayFor(shortAbsence))
        activate();
    if (isFocused)
        m_leftAt.reset();
    m_isLeftAlone = false;
}

void Foreground::minutePassed()
{
    if (m_isLeftAlone || !isInFront() || !isAwayFor(longAbsence))
        return;
    m_isLeftAlone = true;
    m_handlers.leftAlone();
}

void Foreground::timeChanged()
{
    if (isInFront())
        m_handlers.significantTimeChange();
}

// A clock that was set back says nothing of how long it has been.
bool Foreground::isAwayFor(Seconds absence) const
{
    const Milliseconds since = m_leftAt ? m_clock.now() - *m_leftAt : Milliseconds::zero();
    return since >= absence || since < Milliseconds::zero();
}

void Foreground::activate()
{
    if (m_leftAt)
        m_leftAt = m_clock.now(); // focus follows a moment later, and is no second activation
    m_isLeftAlone = false;
    m_handlers.becameActive();
}

WindowPresence::WindowPresence(QWindow& window, Foreground& foreground)
{
    connect(&window, &QWindow::visibilityChanged, this, [&foreground](QWindow::Visibility visibility) {
        foreground.setShown(visibility != QWindow::Hidden && visibility != QWindow::Minimized);
    });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [&foreground](Qt::ApplicationState state) { foreground.setFocused(state == Qt::ApplicationActive); });
}

} // namespace vidora
