#include "platform/DeviceSettings.h"

namespace vidora {

QTimeZone DeviceSettings::timeZone()
{
    return QTimeZone::systemTimeZone();
}

QLocale DeviceSettings::locale()
{
    return QLocale();
}

} // namespace vidora
