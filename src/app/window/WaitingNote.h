#pragma once

#include "app/window/Appearance.h"

#include <QQmlApplicationEngine>

#include <optional>

namespace vidora {

/// A small window for a start that has to wait, such as while the window before it brings its last lists to the disk.
/// Closing it ends the process, which has begun nothing yet. Main thread.
class WaitingNote
{
public:
    explicit WaitingNote(const QString& text);

private:
    QQmlApplicationEngine m_engine;
    std::optional<Appearance> m_appearance;
    QObject m_listener; ///< last, so that it doesn't take the end of this object for the user's
};

} // namespace vidora
