#pragma once

#include "content/ShowElement.h"
#include "core/ChannelCatalogue.h"
#include "screens/ScreenModel.h"

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
    /// The rows of a screen: shows as lines below the channel or the heading that they belong to. In the colours of the
    /// screen where standard output is a terminal that has some.
    QString screen(const ScreenModel& screen) const;
    /// Shows of several channels, under a heading for each day.
    QString byDays(const ShowList& shows) const;
    /// The shows as objects, each with the title of its channel as "channelTitle".
    QJsonArray json(const ShowList& shows) const;

private:
    QString time(std::optional<Instant> instant) const;
    QString times(const TVEntry& entry) const;
    QString titleAndRemarks(const TVEntry& entry) const;
    QString row(const ScreenRow& row) const;
    QString painted(const QString& text, const AttributedText& like) const;

    const ChannelData& m_channels;
    const QTimeZone m_zone;
    const bool m_isColoured;
};

} // namespace vidora
