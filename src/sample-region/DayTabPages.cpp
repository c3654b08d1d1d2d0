#include "sample-region/Documents.h"

#include <QString>

#include <array>

namespace vidora::region {

namespace {

constexpr int dayStartHour = 6;

/// The shows of one broadcasting day of a site that lets its days begin at `hour`.
Broadcasts siteDay(const DocumentRequest& request, const RegionChannel& channel, const QTimeZone& zone, QDate date,
                   int hour = dayStartHour)
{
    return request.schedule.between(channel, momentOf(zone, date, hour), momentOf(zone, date.addDays(1), hour));
}

std::string upperCase(const std::string& text)
{
    return QString::fromStdString(text).toUpper().toStdString();
}

const RegionChannel* channelOfPath(const DocumentRequest& request, std::string_view root, std::string_view prefix)
{
    if (request.path.rfind(root, 0) != 0)
        return nullptr;
    return channelWithSource(std::string(prefix) + request.path.substr(root.size()));
}

} // namespace

// One day a page. The tabs link to a week of pages, the day shown is the active one.
std::optional<Document> jojPage(const DocumentRequest& request)
{
    const auto channels = channelsWithPrefix("joj.");
    const QDate date = QDate::fromString(QString::fromStdString(request.date), QStringLiteral("d-M-yyyy"));
    if (request.path != "/cz/cz-program/" || !date.isValid() || channels.empty())
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Bratislava");
    const QDate shown = date.addDays(request.dayShift);
    std::string tabs, list;
    for (int d = -1; d <= 5; ++d) {
        const QDate tab = shown.addDays(d);
        tabs += filled(R"(      <li><a href="?day={day}" class="{class}">{label}</a></li>
)",
                       {{"day", dateText(tab, "d-M-yyyy")},
                        {"class", tab == shown ? "active" : "other"},
                        {"label", dateText(tab, "d. M.")}});
    }
    for (const Broadcast& show : siteDay(request, *channels.front().channel, zone, shown))
        list += filled(R"(      <div data-kind="{genre}" class="item">
        <span class="time">{time}</span>
        <a href="/cz/film/{slug}" title="{title}"><img src="{picture}" alt=""></a>
        <h3>{title}</h3><p>{genre}, {year}</p>
      </div>
)",
                       {{"genre", show.genreText},
                        {"time", localText(zone, show.start, "HH:mm")},
                        {"slug", show.slug},
                        {"title", show.title},
                        {"picture", show.picture()},
                        {"year", std::to_string(show.year)}});
    const std::string page = filled(
        R"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Transitional//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd">
<html xmlns="http://www.w3.org/1999/xhtml" lang="cs">
<head>
  <meta http-equiv="Content-Type" content="text/html; charset=windows-1250" />
  <title>Program stanice {channel}</title>
  <link rel="stylesheet" href="/css/main.css" type="text/css" />
  <script type="text/javascript">var site = {"lang": "cz", "items": []};</script>
</head>
<body id="program">
  <!-- header -->
  <ul class="menu"><li><a href="/cz">Úvod</a></li><li><a href="/cz/kontakt">Kontakt</a></li></ul>
  <div class="days">
    <ul>
{tabs}    </ul>
  </div>
  <div class="list">
{list}  </div>
  <div class="foot"><a class="back" href="?day=now">Dnes</a> &copy; {channel}</div>
</body>
</html>
)",
        {{"channel", channels.front().channel->title}, {"tabs", tabs}, {"list", list}});
    return Document{encoded(page, "WINDOWS-1250"), "text/html; charset=windows-1250"};
}

// One day a page, all its shows in one row.
std::optional<Document> primaMaxPage(const DocumentRequest& request)
{
    const RegionChannel* channel = channelWithSource(primaMaxSourceId);
    const QTimeZone zone = zoneNamed("Europe/Prague");
    constexpr std::string_view root = "/tv-program";
    if (request.path.rfind(root, 0) != 0)
        return std::nullopt;
    QDate shown = dateIn(zone, request.now);
    if (request.path != root)
        shown =
            QDate::fromString(QString::fromStdString(request.path.substr(root.size())), QStringLiteral("/yyyy-MM-dd"))
                .addDays(request.dayShift);
    if (!shown.isValid())
        return std::nullopt;
    std::string list;
    for (const Broadcast& show : siteDay(request, *channel, zone, shown)) {
        std::string description = show.description;
        if (show.cast.size() > 2)
            description +=
                " Hrají " + show.cast.front() + " Dále Hrají " + joined({show.cast.begin() + 1, show.cast.end()}, ", ");
        if (!show.director.empty())
            description += " Režie " + show.director;
        list += filled(R"(          <div class="col-xs-2"><time>{time}</time></div>
          <div class="col-xs-10">
            <h3 class="broadcast-title broadcast-title-xs"><a class="broadcast-link" href="/porady/{slug}"></a>
              {title}{episode}</h3>
            <p class="m-top broadcast-description">{description}</p>
            <img src="{self}{picture}" class="img-responsive" alt="">
          </div>
)",
                       {{"time", localText(zone, show.start, "HH:mm")},
                        {"slug", show.slug},
                        {"title", show.title},
                        {"episode", show.episode > 0 ? " (" + std::to_string(show.episode) + ")" : ""},
                        {"description", description},
                        {"self", request.self},
                        {"picture", show.picture()}});
    }
    return Document{filled(R"(<!DOCTYPE html>
<html lang="cs" class="no-js">
<head>
  <meta charset="utf-8">
  <meta name="viewport" content="width=device-width, initial-scale=1">
  <title>TV program | {channel}</title>
  <script async src="/assets/app.js"></script>
  <style>.tab { display: none } .tab-active { display: block }</style>
</head>
<body>
  <nav class="navbar" role="navigation"><ul><li><a href="/">Domů</a></li><li class="active"><a href="/tv-program">TV program</a></li></ul></nav>
  <main>
    <!-- {date} -->
    <div id="day" class="tab tab-active">
      <div class="container">
        <div class="row">
{list}        </div>
      </div>
    </div>
  </main>
  <footer><p>&copy; {channel}</p></footer>
</body>
</html>
)",
                           {{"channel", channel->title}, {"date", dateText(shown, "yyyy-MM-dd")}, {"list", list}}),
                    "text/html; charset=utf-8"};
}

// All channels of the house on one page with fifteen tabs. Only the present day is out; the days after it are
// announced.
std::optional<Document> dskPage(const DocumentRequest& request)
{
    if (request.path != "/program/")
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Bratislava");
    constexpr int tabs = 15, nightEndHour = 3;
    std::string today, announced;
    for (const auto& [channel, code] : channelsWithPrefix("dsk.")) {
        today += filled(
            "      <div class=\"station\"><img class=\"logo\" alt=\"{code}\" src=\"/loga/{icon}\" />\n        <ul>\n",
            {{"code", code}, {"icon", channel->icon()}});
        for (const Broadcast& show : siteDay(request, *channel, zone, dateIn(zone, request.now), nightEndHour))
            today +=
                filled("          <li><span><strong>{time}</strong></span> <strong>{title}</strong><br />{text}</li>\n",
                       {{"time", localText(zone, show.start, "HH:mm")},
                        {"title", show.title},
                        {"text", show.genreText + ". " + show.description}});
        today += "        </ul>\n        <a rel=\"nofollow\" href=\"http://www.javor.example/\">Stránky stanice</a>\n  "
                 "    </div>\n";
    }
    for (int tab = 1; tab < tabs; ++tab)
        announced += filled("    <div class=\"tab\" id=\"tabs-{tab}\"><p>Program připravujeme.</p></div>\n",
                            {{"tab", std::to_string(tab)}});
    const std::string page = filled(
        R"(<!DOCTYPE html PUBLIC "-//W3C//DTD XHTML 1.0 Strict//EN" "http://www.w3.org/TR/xhtml1/DTD/xhtml1-strict.dtd">
<html xmlns="http://www.w3.org/1999/xhtml" xml:lang="cs">
<head>
  <meta http-equiv="content-type" content="text/html; charset=windows-1250" />
  <title>Televizní program</title>
  <script type="text/javascript" src="/js/tabs.js"></script>
  <script type="text/javascript">//<![CDATA[
    $(function () { $("#tabs").tabs({ active: 0 }); });
  //]]></script>
</head>
<body>
  <h1>Program</h1>
  <div id="tabs">
    <div class="tab" id="tabs-0">
{today}    </div>
{announced}  </div>
  <!-- footer -->
  <p class="foot">Změna programu vyhrazena.</p>
</body>
</html>
)",
        {{"today", today}, {"announced", announced}});
    return Document{encoded(page, "WINDOWS-1250"), "text/html; charset=windows-1250"};
}

// One channel a page, one tab a weekday from Monday on. A day runs from eight to eight, titles are in capitals.
std::optional<Document> dolceSportPage(const DocumentRequest& request)
{
    const RegionChannel* channel = channelOfPath(request, "/program/", "dolce-sport.");
    if (!channel)
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Bucharest");
    constexpr std::array names{"luni", "marti", "miercuri", "joi", "vineri", "sambata", "duminica"};
    constexpr int siteDayHour = 8;
    const QDate today = dateIn(zone, request.now);
    std::string tabs, sections;
    for (int weekday = 0; weekday < (request.sixDays ? 6 : 7); ++weekday) {
        const QDate date = today.addDays((weekday + 8 - today.dayOfWeek()) % 7);
        const std::string name = names[std::size_t(weekday)];
        tabs += filled("      <li role=\"presentation\"><a data-ls-for=\"zi-{name}\" class=\"tab\">{name}</a></li>\n",
                       {{"name", name}});
        sections +=
            filled("    <div class=\"day\" id=\"zi-{name}\">\n      <ul class=\"list-group\">\n", {{"name", name}});
        for (const Broadcast& show : siteDay(request, *channel, zone, date, siteDayHour))
            sections += filled(R"(        <li class="list-group-item"><span class="time"> {time} </span>
          <span class="name"> {title} </span></li>
)",
                               {{"time", localText(zone, show.start, "HH:mm")}, {"title", upperCase(show.title)}});
        sections += "      </ul>\n    </div>\n";
    }
    return Document{filled(R"(<!DOCTYPE html>
<html lang="ro">
<head>
  <meta charset="utf-8">
  <title>Program {channel}</title>
  <link href="/assets/site.min.css" rel="stylesheet">
  <script>window.dataLayer = window.dataLayer || [];</script>
</head>
<body class="program">
  <nav><ul class="nav nav-tabs">
{tabs}  </ul></nav>
  <section>
{sections}  </section>
  <!-- /program -->
  <script src="/assets/ls-tabs.js"></script>
</body>
</html>
)",
                           {{"channel", channel->title}, {"tabs", tabs}, {"sections", sections}}),
                    "text/html; charset=UTF-8"};
}

} // namespace vidora::region
