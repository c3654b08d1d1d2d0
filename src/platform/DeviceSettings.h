#pragma once

#include <QLocale>
#include <QStringList>
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
    /// In which language and script the environment wants dates, times and numbers: LC_ALL, LC_TIME or LANG. `locale()`
    /// does not tell Serbian in Latin letters ("sr_RS@latin") from Cyrillic until this is made the default.
    static QLocale localeOfEnvironment();
    /// The languages in which the user reads, the best first, as "sr-Latn" or "de": of LANGUAGE, LC_ALL, LC_MESSAGES
    /// and LANG, as programs of the desktop read them. Empty where none is set ("C").
    static QStringList languagesOfEnvironment();
    /// Bytes of memory that the machine has.
    static qint64 physicalMemory();
};

} // namespace vidora
