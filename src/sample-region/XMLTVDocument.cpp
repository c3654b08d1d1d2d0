#include "sample-region/Container.h"
#include "sample-region/Documents.h"

#include <QDateTime>

#include <cstdio>
#include <cstdlib>

namespace vidora::region {

namespace {

/// Guides of the XMLTV DTD differ in where they put what a show is about.
enum class Style
{
    Labels,     ///< credits as labelled lines of the description, the genre in brackets behind the sub-title
    Elements,   ///< everything in the element that the DTD has for it
    Categories, ///< categories as an attribute from a fixed list
    Pictures    ///< `image` elements with paths
};

std::string xmltvTime(const QTimeZone& zone, Instant moment)
{
    const int offset =
        zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(unixMilliseconds(moment), QTimeZone::utc())) / 60;
    char suffix[16];
    std::snprintf(suffix, sizeof suffix, " %c%02d%02d", offset < 0 ? '-' : '+', std::abs(offset) / 60,
                  std::abs(offset) % 60);
    return localText(zone, moment, "yyyyMMddHHmmss") + suffix;
}

std::string element(std::string_view name, std::string_view text, std::string_view attributes = {})
{
    if (text.empty())
        return {};
    return filled("    <{name}{attributes}>{text}</{name}>\n",
                  {{"name", name}, {"attributes", attributes}, {"text", escaped(text)}});
}

std::string credits(const Broadcast& show)
{
    std::string text;
    if (!show.director.empty())
        text += "  " + element("director", show.director);
    for (const std::string& actor : show.cast)
        text += "  " + element("actor", actor);
    return text.empty() ? text : "    <credits>\n" + text + "    </credits>\n";
}

std::string_view categoryCode(Genre genre)
{
    switch (genre) {
    case Genre::Film:
        return "Drama";
    case Genre::Series:
        return "Show";
    case Genre::Documentary:
        return "Documentary";
    case Genre::Children:
        return "Children";
    case Genre::News:
        return "News";
    case Genre::Entertainment:
        return "Entertainment";
    case Genre::Music:
        return "Music";
    case Genre::Sports:
        return "Sports";
    }
    return {};
}

/// The texts of a show in the style of feeds that know titles and descriptions only.
std::string labelledTexts(const Broadcast& show, const Vocabulary& words)
{
    std::string subtitle = show.episodeTitle, description = show.description;
    subtitle += (subtitle.empty() ? "[" : " [") + show.genreText + "]";
    if (!show.cast.empty())
        description += "\n" + std::string(words.cast) + joined(show.cast, ", ");
    if (!show.director.empty())
        description += "\n" + std::string(words.director) + show.director;
    if (show.genre == Genre::Documentary)
        description += " (više na http://" + std::string(creditsHost) + ")";
    return element("title", show.title + (show.repeat ? " (R)" : "")) + element("sub-title", subtitle) +
           element("desc", description);
}

std::string texts(const Broadcast& show, const RegionChannel& channel, Style style)
{
    const Vocabulary& words = vocabulary(channel.speech);
    const std::string language = " lang=\"" + std::string(channel.speech) + "\"";
    if (channel.titleInSubtitle)
        return element("title", "Filmski program", language) + element("sub-title", show.title, language) +
               element("desc", show.description, language);
    if (style == Style::Labels)
        return labelledTexts(show, words);
    std::string text = element("title", show.title, language) + element("sub-title", show.episodeTitle, language) +
                       element("desc", show.description, language) + credits(show) +
                       element("date", std::to_string(show.year));
    if (style == Style::Categories)
        text += element("category", show.genreText, filled(" desc=\"{code}\"", {{"code", categoryCode(show.genre)}}));
    else
        text += element("category", show.genreText, language);
    if (style == Style::Pictures)
        text += element("image", show.slug + ".png");
    text += element("country", show.country);
    if (show.episode > 0)
        text += element("episode-num", "0." + std::to_string(show.episode - 1) + ".0/1", " system=\"xmltv_ns\"");
    if (show.repeat)
        text += "    <previously-shown />\n";
    return text;
}

struct Guide
{
    const DocumentRequest& request;
    Style style;
    std::string channels = {}, programmes = {};

    void add(const RegionChannel& channel, const std::string& feedId, Instant from, Instant to)
    {
        const QTimeZone zone = zoneNamed(vocabulary(channel.speech).zone);
        // Channels that repeat another one an hour later are announced with the times of the other's repeat.
        const Seconds late(feedId.find("Plus1") == std::string::npos ? 0 : 3600);
        channels += filled(R"(  <channel id="{id}">
    <display-name lang="{speech}">{title}</display-name>
    <icon src="{self}/icons/{icon}" />
  </channel>
)",
                           {{"id", escaped(feedId)},
                            {"speech", channel.speech},
                            {"title", escaped(channel.title)},
                            {"self", request.self},
                            {"icon", channel.icon()}});
        for (const Broadcast& show : request.schedule.between(channel, from, to))
            programmes += filled(R"(  <programme start="{start}" stop="{stop}" channel="{id}">
{texts}{icon}  </programme>
)",
                                 {{"start", xmltvTime(zone, show.start + late)},
                                  {"stop", xmltvTime(zone, show.end + late)},
                                  {"id", escaped(feedId)},
                                  {"texts", texts(show, channel, style)},
                                  {"icon", icon(show)}});
    }

    std::string icon(const Broadcast& show) const
    {
        if (style == Style::Labels || style == Style::Pictures)
            return {};
        return filled("    <icon src=\"{self}{picture}\" />\n", {{"self", request.self}, {"picture", show.picture()}});
    }

    std::string document() const
    {
        return filled(R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE tv SYSTEM "xmltv.dtd">
<!-- made for {date} -->
<tv source-info-name="sample region" generator-info-name="vidora-sample-region">
{channels}{programmes}</tv>
)",
                      {{"date", dateText(dateIn(QTimeZone::utc(), request.now), "yyyy-MM-dd")},
                       {"channels", channels},
                       {"programmes", programmes}});
    }
};

Document plain(const Guide& guide)
{
    return {guide.document(), "application/xml"};
}

/// One channel from midnight of a date on, in its own zone.
Document channelGuide(const DocumentRequest& request, const RegionChannel& channel, const std::string& feedId,
                      QDate date, int days, Style style)
{
    const QTimeZone zone = zoneNamed(vocabulary(channel.speech).zone);
    Guide guide{request, style};
    guide.add(channel, feedId, momentOf(zone, date, 0), momentOf(zone, date.addDays(days), 0));
    return plain(guide);
}

} // namespace

std::optional<Document> xmltvFeed(const DocumentRequest& request, std::string_view family)
{
    std::string prefix = std::string(family) + ".";
    if (family == "r") {
        constexpr std::string_view head = "/rytec", tail = ".xz";
        const std::string& path = request.path;
        if (path.rfind(head, 0) != 0 || path.size() <= head.size() + tail.size())
            return std::nullopt;
        prefix += path.substr(head.size(), path.size() - head.size() - tail.size()) + ".";
    }
    Guide guide{request, family == "n" ? Style::Labels : family == "tvpc" ? Style::Categories : Style::Elements};
    for (const auto& [channel, feedId] : channelsWithPrefix(prefix))
        guide.add(*channel, feedId, request.now - dayStep, request.now + 8 * dayStep);
    if (guide.channels.empty())
        return std::nullopt;
    if (family == "r")
        return Document{xzFile(guide.document()), "application/x-xz"};
    if (family == "s")
        return Document{gzipFile(guide.document()), "application/x-gzip"};
    return plain(guide);
}

std::optional<Document> xmltvWeek(const DocumentRequest& request)
{
    constexpr std::string_view head = "/xmltv/data/";
    const std::string id = request.path.substr(0, request.path.rfind('/')).substr(head.size());
    const RegionChannel* channel = channelWithSource(id);
    if (!channel || request.path != filled("/xmltv/data/{id}/weekly_{id}_vodic.xml", {{"id", id}}))
        return std::nullopt;
    return channelGuide(request, *channel, id, dateIn(QTimeZone::utc(), request.now), 8, Style::Elements);
}

std::optional<Document> xmltvDayFile(const DocumentRequest& request)
{
    const std::string name = request.path.substr(request.path.rfind('/') + 1);
    const std::size_t word = name.rfind("epg_");
    const RegionChannel* channel = channelWithSource(name.substr(0, word));
    if (!channel || word == std::string::npos)
        return std::nullopt;
    const QDate date =
        QDate::fromString(QString::fromStdString(name.substr(word + 4)), QStringLiteral("yyyy-MM-dd'.xml'"));
    if (!date.isValid())
        return std::nullopt;
    return channelGuide(request, *channel, name.substr(0, word), date, 1, Style::Pictures);
}

std::optional<Document> xmltvService(const DocumentRequest& request)
{
    const RegionChannel* channel = channelWithSource("=" + request.key);
    const QDate date = QDate::fromString(QString::fromStdString(request.date), QStringLiteral("d.M.yyyy."));
    if (!channel || !date.isValid())
        return std::nullopt;
    return channelGuide(request, *channel, request.key, date, 1, Style::Labels);
}

std::optional<Document> xmltvPage(const DocumentRequest& request)
{
    const RegionChannel* channel = channelWithSource("http://127.0.0.1:" + std::to_string(fixedPort) + request.path);
    if (!channel)
        return std::nullopt;
    return channelGuide(request, *channel, channel->icon(), dateIn(QTimeZone::utc(), request.now).addDays(-1), 8,
                        Style::Elements);
}

} // namespace vidora::region
