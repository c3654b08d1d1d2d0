#include "content/BroadcastTime.h"

#include "platform/DeviceSettings.h"

#include <QDateTime>

namespace vidora {

namespace {

/// The device's short time format. That of the C locale has seconds, which no list shows, and some locales name a day
/// period ("B", in Unicode's terms) that QLocale can only write as the half of the day.
QString shortTimeFormat(const QLocale& locale)
{
    if (locale.language() == QLocale::C)
        return QStringLiteral("HH:mm");
    return locale.timeFormat(QLocale::ShortFormat).replace(QLatin1Char('B'), QLatin1String("AP"));
}

/// QLocale writes the marker in the case of its letters in the format: "ap" asks for small ones.
QString withSmallMarker(QString format)
{
    bool quoted = false;
    for (QChar& letter : format) {
        if (letter == QLatin1Char('\''))
            quoted = !quoted;
        else if (!quoted && (letter == QLatin1Char('A') || letter == QLatin1Char('P')))
            letter = letter.toLower();
    }
    return format;
}

QString broadcastTimeFormat(const QLocale& locale)
{
    QString format = shortTimeFormat(locale);
    const bool hourLeads = format.startsWith(QLatin1Char('h'), Qt::CaseInsensitive);
    const bool singleDigitHour = format.size() >= 4 && hourLeads && format[1] != format[0];
    const qsizetype blank = format.indexOf(QLatin1Char(' '));
    if (blank >= 0)
        format.remove(blank, 1);
    if (singleDigitHour)
        format.prepend(format[0]);
    return withSmallMarker(format);
}

} // namespace

QString broadcastTimeText(Instant instant)
{
    const QDateTime local = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), DeviceSettings::timeZone());
    const QLocale locale = DeviceSettings::locale();
    return locale.toString(local.time(), broadcastTimeFormat(locale));
}

} // namespace vidora
