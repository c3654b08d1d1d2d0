#pragma once

#include "content/ShowElement.h"
#include "core/ChannelCatalogue.h"

#include <QJsonArray>
#include <QString>
#include <QTimeZone>

namespace vidora {

/// Turns shows into lines for a terminal: times in the device's zone, days in its language. Holds no state but the
/// zone.
class ShowPrinter
{
public:
    explicit ShowPrinter(const ChannelData& channels);

    /// "20:00-20:45  Title  (details)", one line.
    QString line(const Show& show) const;
    /// The same with the channel ahead of it.
    QString lineWithChannel(const Show& show) const;
    /// Lines under a heading for each day.
    QString byDays(const ShowList& shows, bool withChannels) const;
    /// The shows as objects, each with the title of its channel as "channelTitle".
    QJsonArray json(const ShowList& shows) const;

private:
    QString time(std::optional<Instant> instant) const;

    const ChannelData& m_channels;
    const QTimeZone m_zone;
};

/// Writes a text to standard output.
void printText(const QString& text);

} // namespace vidora
