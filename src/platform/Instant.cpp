#include "platform/Instant.h"

#include <QDateTime>
#include <QTimeZone>

namespace vidora {

QString isoText(Instant instant)
{
    QString text = QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), Qt::UTC).toString(Qt::ISODateWithMs);
    // Qt writes three digits of fraction always.
    const qsizetype fraction = text.lastIndexOf(QLatin1Char('.'));
    if (fraction < 0)
        return text;
    qsizetype end = text.size() - 1;
    while (text.at(end - 1) == QLatin1Char('0'))
        --end;
    if (end - 1 == fraction)
        end = fraction;
    return text.left(end) + QLatin1Char('Z');
}

std::optional<Instant> instantFromIsoText(QStringView text)
{
    if (!text.endsWith(QLatin1Char('Z')))
        return std::nullopt;
    const QDateTime date = QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
    if (!date.isValid())
        return std::nullopt;
    return instantFromUnixMilliseconds(date.toMSecsSinceEpoch());
}

} // namespace vidora
