#include "sample-region/Documents.h"

#include <array>
#include <cstdlib>

namespace vidora::region {

namespace {

constexpr int dayStartHour = 6;
constexpr int pages = 7;

int genreCode(const Broadcast& show)
{
    switch (show.genre) {
    case Genre::Documentary:
        return 32;
    case Genre::Sports:
        return 41;
    case Genre::Film:
        break;
    default:
        return 40;
    }
    constexpr std::array<std::pair<std::string_view, int>, 5> kinds{
        {{"drama", 33}, {"komedija", 30}, {"triler", 37}, {"pustolovni", 28}, {"kriminalistički", 31}}};
    for (const auto& [kind, code] : kinds)
        if (show.genreText.find(kind) != std::string::npos)
            return code;
    return 39;
}

std::string station(const DocumentRequest& request, const QTimeZone& zone, const SourcedChannel& sourced, QDate date)
{
    std::string featured, list;
    for (const Broadcast& show : request.schedule.between(*sourced.channel, momentOf(zone, date, dayStartHour),
                                                          momentOf(zone, date.addDays(1), dayStartHour))) {
        const std::string zanr = std::to_string(genreCode(show)), time = localText(zone, show.start, "HH:mm");
        const std::string link = request.self + "/emisija/" + show.slug;
        // The show that opens the day is shown large, and once more as the first of the list.
        if (featured.empty())
            featured = filled(
                R"(      <div class='featured zanr{zanr}'><a href="{link}"><span class='name fit-text'> {title}</span></a>
        <div class="hour hour-large">{time}</div></div>
)",
                {{"zanr", zanr}, {"link", link}, {"title", show.title}, {"time", time}});
        list += filled(R"(        <li class='show zanr{zanr}'><span class="hour hour-small">{time}</span>
          <a href="{link}"><h4 class='title'>{title}</h4></a></li>
)",
                       {{"zanr", zanr}, {"link", link}, {"title", show.title}, {"time", time}});
    }
    return filled("    <div id='kanal-C{code}' class='station'>\n{featured}      <ul>\n{list}      </ul>\n    </div>\n",
                  {{"code", sourced.key}, {"featured", featured}, {"list", list}});
}

} // namespace

// A week of pages, the first for yesterday: readers find their day by the date in the heading.
std::optional<Document> cinestarPage(const DocumentRequest& request)
{
    const int page = request.date.empty() ? 1 : std::atoi(request.date.c_str());
    if (request.path != "/raspored/" || page < 1 || page > pages)
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Zagreb");
    const QDate date = dateIn(zone, request.now).addDays(page - 2);
    std::string stations, tabs;
    for (const SourcedChannel& sourced : channelsWithPrefix("cinestar.hr."))
        stations += station(request, zone, sourced, date);
    for (int tab = 1; tab <= pages; ++tab)
        tabs += filled("<a href='/raspored/?dan={tab}'>{tab}</a> ", {{"tab", std::to_string(tab)}});
    const std::string text = filled(
        R"(<!DOCTYPE html>
<html class="no-js" lang="hr-HR">
<head>
  <meta http-equiv="Content-Type" content="text/html; charset=iso-8859-2">
  <title>Raspored | Lanterna</title>
  <script>var theme = {"base": "/"};</script>
</head>
<body class="page">
  <nav><a href="/">Naslovnica</a> <a href="{self}/raspored/">Raspored</a></nav>
  <p class='tabs'>{tabs}</p>
  <h2 class="date-title">{date}</h2>
  <div class='stations'>
{stations}  </div>
  <!-- footer -->
</body>
</html>
)",
        {{"self", request.self}, {"tabs", tabs}, {"date", dateText(date, "dd.MM.yyyy.")}, {"stations", stations}});
    return Document{encoded(text, "ISO-8859-2"), "text/html; charset=iso-8859-2"};
}

} // namespace vidora::region
