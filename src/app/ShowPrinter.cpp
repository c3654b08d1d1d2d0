#include "app/ShowPrinter.h"

#include "app/ChannelNames.h"
#include "listings/ShowJson.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>
#include <QJsonObject>

#include <cstdio>

namespace vidora {

namespace {

constexpr qsizetype titleColumn = 20;

QDateTime localTime(Instant instant, const QTimeZone& zone)
{
    return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), zone);
}

// A provider's text may hold anything; control characters would move the terminal's cursor.
QString printable(QString text)
{
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = QLatin1Char(' ');
    }
    return text.simplified();
}

} // namespace

ShowPrinter::ShowPrinter(const ChannelData& channels)
    : m_channels(channels)
    , m_zone(DeviceSettings::timeZone())
{
}

QString ShowPrinter::time(std::optional<Instant> instant) const
{
    return instant ? localTime(*instant, m_zone).toString(QStringLiteral("HH:mm")) : QStringLiteral("     ");
}

QString ShowPrinter::line(const Show& show) const
{
    const TVEntry& entry = *show->entry;
    QString text = time(entry.dateTime()) + QLatin1Char('-') + time(entry.endDateTime()) + QLatin1String("  ") +
                   printable(entry.title().value_or(QString()));
    const QString details = printable(entry.fullInstantDetails().value_or(QString()));
    if (!details.isEmpty())
        text += QLatin1String("  (") + details + QLatin1Char(')');
    if (entry.previouslyShown())
        text += QLatin1String("  (R)");
    return text;
}

QString ShowPrinter::lineWithChannel(const Show& show) const
{
    return titleOf(show->entry->channel(), m_channels).leftJustified(titleColumn) + QLatin1Char(' ') + line(show);
}

QString ShowPrinter::byDays(const ShowList& shows, bool withChannels) const
{
    QString text;
    QDate day;
    for (const Show& show : shows) {
        if (!show->entry->dateTime())
            continue;
        const QDate date = localTime(*show->entry->dateTime(), m_zone).date();
        if (date != day) {
            text += (day.isValid() ? QLatin1String("\n") : QLatin1String("")) +
                    DeviceSettings::locale().toString(date, QLocale::LongFormat) + QLatin1Char('\n');
            day = date;
        }
        text += QLatin1String("  ") + (withChannels ? lineWithChannel(show) : line(show)) + QLatin1Char('\n');
    }
    return text;
}

QJsonArray ShowPrinter::json(const ShowList& shows) const
{
    QJsonArray array;
    for (const Show& show : shows) {
        QJsonObject object = showToJson(*show);
        object.insert(QStringLiteral("channelTitle"), titleOf(show->entry->channel(), m_channels));
        array.append(object);
    }
    return array;
}

void printText(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
}

} // namespace vidora
