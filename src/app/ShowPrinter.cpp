#include "app/ShowPrinter.h"

#include "app/ChannelNames.h"
#include "app/Terminal.h"
#include "listings/ShowJson.h"
#include "platform/DeviceSettings.h"

#include <QDateTime>
#include <QJsonObject>

#include <unistd.h>

namespace vidora {

namespace {

constexpr qsizetype titleColumn = 20;

QDateTime localTime(Instant instant, const QTimeZone& zone)
{
    return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(instant), zone);
}

bool isOutputColoured()
{
    return isatty(STDOUT_FILENO) == 1 && qEnvironmentVariableIsEmpty("NO_COLOR") && qgetenv("TERM") != "dumb";
}

/// Graphic rendition of a terminal (ECMA-48, SGR) for a colour role; empty for those that need none.
QLatin1String renditionOf(const QString& role)
{
    if (role == colour::indigo)
        return QLatin1String("1;34");
    if (role == colour::alarmRed)
        return QLatin1String("31");
    if (role == colour::onAirGreen)
        return QLatin1String("32");
    if (role == colour::favouriteOrange)
        return QLatin1String("33");
    return {};
}

} // namespace

ShowPrinter::ShowPrinter(const ChannelData& channels)
    : m_channels(channels)
    , m_zone(DeviceSettings::timeZone())
    , m_isColoured(isOutputColoured())
{
}

QString ShowPrinter::time(std::optional<Instant> instant) const
{
    return instant ? localTime(*instant, m_zone).toString(QStringLiteral("HH:mm")) : QStringLiteral("     ");
}

QString ShowPrinter::times(const TVEntry& entry) const
{
    return time(entry.dateTime()) + QLatin1Char('-') + time(entry.endDateTime());
}

QString ShowPrinter::titleAndRemarks(const TVEntry& entry) const
{
    QString text = QLatin1String("  ") + printable(entry.title().value_or(QString()));
    const QString details = printable(entry.fullInstantDetails().value_or(QString()));
    if (!details.isEmpty())
        text += QLatin1String("  (") + details + QLatin1Char(')');
    if (entry.previouslyShown())
        text += QLatin1String("  (R)");
    return text;
}

QString ShowPrinter::line(const Show& show) const
{
    return times(*show->entry) + titleAndRemarks(*show->entry);
}

QString ShowPrinter::lineWithChannel(const Show& show) const
{
    return titleOf(show->entry->channel(), m_channels).leftJustified(titleColumn) + QLatin1Char(' ') + line(show);
}

QString ShowPrinter::painted(const QString& text, const AttributedText& like) const
{
    const QLatin1String rendition =
        like.runs().empty() ? QLatin1String() : renditionOf(like.runs().front().attributes.givenColour);
    if (!m_isColoured || rendition.isEmpty())
        return text;
    return QLatin1String("\x1b[") + rendition + QLatin1Char('m') + text + QLatin1String("\x1b[m");
}

QString ShowPrinter::row(const ScreenRow& row) const
{
    switch (row.kind) {
    case ScreenRow::Kind::Broadcast: // wider than a phone: the end and all remarks stand in the line
        return QLatin1String("  ") + painted(times(*row.show->entry), row.text) + titleAndRemarks(*row.show->entry);
    case ScreenRow::Kind::Channel:
        return (row.accessory == Accessory::Checkmark ? QLatin1String("* ") : QLatin1String("  ")) +
               printable(row.text.string());
    case ScreenRow::Kind::Header:
    case ScreenRow::Kind::Text:
        break;
    }
    return painted(printable(row.text.string()), row.text);
}

QString ShowPrinter::screen(const ScreenModel& screen) const
{
    QString text;
    for (std::size_t section = 0; section < screen.numberOfSections(); ++section) {
        const QString heading = screen.titleForHeaderInSection(section);
        if (!heading.isEmpty() && !screen.hasSectionIndex()) // an index is for fingers
            text += (section > 0 ? QLatin1String("\n") : QLatin1String("")) + heading + QLatin1Char('\n');
        const std::size_t rows = screen.numberOfRowsInSection(section);
        for (std::size_t i = 0; i < rows; ++i) {
            const ScreenRow made = screen.rowAt({section, i});
            text += row(made) + QLatin1Char('\n');
            if (made.kind == ScreenRow::Kind::Header && rows == 1)
                text += QLatin1String("  ") + localized("No listings.") + QLatin1Char('\n');
        }
    }
    return text;
}

QString ShowPrinter::byDays(const ShowList& shows) const
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
        text += QLatin1String("  ") + lineWithChannel(show) + QLatin1Char('\n');
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

} // namespace vidora
