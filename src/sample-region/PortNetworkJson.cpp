#include "sample-region/Documents.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace vidora::region {

namespace {

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
}

QJsonObject programme(const Broadcast& show, const QTimeZone& zone)
{
    const auto moment = [&](Instant at) {
        return QDateTime::fromMSecsSinceEpoch(unixMilliseconds(at), zone).toTimeSpec(Qt::OffsetFromUTC);
    };
    QJsonObject object{
        {QStringLiteral("id"), QStringLiteral("event-%1").arg(unixSeconds(show.start))},
        {QStringLiteral("title"), text(show.title)},
        {QStringLiteral("start_datetime"), moment(show.start).toString(Qt::ISODate)},
        {QStringLiteral("end_datetime"), moment(show.end).toString(Qt::ISODate)},
        {QStringLiteral("short_description"),
         text("(" + show.country + " " + show.genreText + ", " + std::to_string(show.year) + ")")},
        {QStringLiteral("film_url"), text("/musor/" + show.slug)},
        {QStringLiteral("is_repeat"), show.repeat},
        {QStringLiteral("restriction"), QJsonObject{{QStringLiteral("age_limit"), 12}}},
    };
    if (!show.episodeTitle.empty())
        object[QStringLiteral("episode_title")] = text(show.episodeTitle);
    return object;
}

} // namespace

std::optional<Document> portNetworkJson(const DocumentRequest& request)
{
    constexpr std::string_view prefix = "tvchannel-";
    const RegionChannel* channel =
        request.key.rfind(prefix, 0) == 0 ? channelWithSource(request.key.substr(prefix.size())) : nullptr;
    const QDate first = QDate::fromString(QString::fromStdString(request.date.substr(0, 10)), Qt::ISODate);
    const QDate last = QDate::fromString(QString::fromStdString(request.date.substr(10)), Qt::ISODate);
    if (!channel || request.path != "/tvapi" || !first.isValid() || first.daysTo(last) > 31)
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Budapest");
    QJsonObject days;
    for (QDate date = first; date <= last; date = date.addDays(1)) {
        QJsonArray programmes;
        for (const Broadcast& show :
             request.schedule.between(*channel, momentOf(zone, date, 0), momentOf(zone, date.addDays(1), 0)))
            programmes.append(programme(show, zone));
        const QJsonObject own{{QStringLiteral("id"), text(request.key)},
                              {QStringLiteral("name"), text(channel->title)},
                              {QStringLiteral("programs"), programmes}};
        days[date.toString(Qt::ISODate)] = QJsonObject{{QStringLiteral("date_from"), date.toString(Qt::ISODate)},
                                                       {QStringLiteral("channels"), QJsonArray{own}}};
    }
    return Document{QJsonDocument(days).toJson(QJsonDocument::Compact).toStdString(), "application/json"};
}

} // namespace vidora::region
