#include "platform/DeviceSettings.h"

#include <unistd.h>

namespace vidora {

QTimeZone DeviceSettings::timeZone()
{
    return QTimeZone::systemTimeZone();
}

QLocale DeviceSettings::locale()
{
    return QLocale();
}

qint64 DeviceSettings::physicalMemory()
{
    return static_cast<qint64>(::sysconf(_SC_PHYS_PAGES)) * ::sysconf(_SC_PAGESIZE);
}

} // namespace vidora
