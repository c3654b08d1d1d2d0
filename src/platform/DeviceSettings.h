#pragma once

#include <QLocale>
#include <QTimeZone>

namespace vidora {

/// What the user's machine is set to. Nothing outside platform/ asks the system for its zone or locale.
/// Both are taken from the environment at each call (TZ, LC_ALL, LC_TIME, LANG), so that a change of the zone is seen
/// without a restart. May be called on any thread.
class DeviceSettings
{
public:
    static QTimeZone timeZone();
    static QLocale locale();
    /// Bytes of memory that the machine has.
    static qint64 physicalMemory();
};

} // namespace vidora
