#include "platform/DeviceSettings.h"

#include <unistd.h>

namespace vidora {

namespace {

/// The first of these variables that is set; "C" counts as set.
QString firstSet(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        const QString value = qEnvironmentVariable(name);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

bool isPlain(const QString& name)
{
    return name.isEmpty() || name == QLatin1String("C") || name.startsWith(QLatin1String("C.")) ||
           name == QLatin1String("POSIX");
}

/// "sr_RS.UTF-8@latin" is language, territory, encoding and a modifier, which may name the script (POSIX, 8.2).
QStringList partsOf(const QString& name)
{
    QStringList parts = name.section(QLatin1Char('@'), 0, 0)
                            .section(QLatin1Char('.'), 0, 0)
                            .replace(QLatin1Char('_'), QLatin1Char('-'))
                            .split(QLatin1Char('-'));
    const QString modifier = name.section(QLatin1Char('@'), 1).toLower();
    if (modifier == QLatin1String("latin"))
        parts.insert(1, QStringLiteral("Latn"));
    else if (modifier == QLatin1String("cyrillic"))
        parts.insert(1, QStringLiteral("Cyrl"));
    return parts;
}

} // namespace

QTimeZone DeviceSettings::timeZone()
{
    return QTimeZone::systemTimeZone();
}

QLocale DeviceSettings::locale()
{
    return QLocale();
}

QLocale DeviceSettings::localeOfEnvironment()
{
    const QString name = firstSet({"LC_ALL", "LC_TIME", "LANG"});
    return isPlain(name) ? QLocale::c() : QLocale(partsOf(name).join(QLatin1Char('_')));
}

QStringList DeviceSettings::languagesOfEnvironment()
{
    const QString name = firstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
    if (isPlain(name))
        return {};
    QStringList languages;
    const QString all = qEnvironmentVariable("LANGUAGE") + QLatin1Char(':') + name;
    for (const QString& wanted : all.split(QLatin1Char(':'))) {
        if (!isPlain(wanted))
            languages << partsOf(wanted).join(QLatin1Char('-'));
    }
    return languages;
}

qint64 DeviceSettings::physicalMemory()
{
    return static_cast<qint64>(::sysconf(_SC_PHYS_PAGES)) * ::sysconf(_SC_PAGESIZE);
}

} // namespace vidora
