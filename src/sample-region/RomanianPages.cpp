#include "sample-region/Documents.h"

#include <cstdlib>

namespace vidora::region {

// One channel on seven pages of a day each; times are counts of seconds. The first page opens with the last shows of
// the evening before.
std::optional<Document> romanianPage(const DocumentRequest& request)
{
    const RegionChannel* channel = channelWithSource("cc.romania");
    constexpr int pages = 7, eveningHour = 20;
    const int page = request.date.empty() ? 0 : std::atoi(request.date.c_str());
    if (request.path != "/program-tv" || page < 0 || page >= pages)
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Bucharest");
    const QDate date = dateIn(zone, request.now).addDays(page);
    const Instant from = page == 0 ? momentOf(zone, date.addDays(-1), eveningHour) : momentOf(zone, date, 0);
    std::string list;
    for (const Broadcast& show : request.schedule.between(*channel, from, momentOf(zone, date.addDays(1), 0)))
        list += filled(R"(    <li class="subject" data-time="{seconds}" data-kind="tv">
      <time>{time}</time> <h3>{title}</h3>
      <a class="more" href="/subiect/{slug}">Detalii</a>
    </li>
)",
                       {{"seconds", std::to_string(unixSeconds(show.start))},
                        {"time", localText(zone, show.start, "HH:mm")},
                        {"title", show.title},
                        {"slug", show.slug}});
    return Document{filled(R"(<!DOCTYPE html>
<html lang="ro" prefix="og: http://ogp.me/ns#">
<head>
  <meta charset="utf-8">
  <title>Program TV {channel}</title>
  <script async src="/static/app.js"></script>
</head>
<body>
  <header><nav><a href="/">Acasă</a> <a href="/program-tv">Program</a></nav></header>
  <h1>{date}</h1>
  <ul class="subjects">
{list}  </ul>
  <!-- paginare -->
  <p><a rel="next" href="?page={next}">Ziua următoare</a></p>
</body>
</html>
)",
                           {{"channel", channel->title},
                            {"date", dateText(date, "dd.MM.yyyy")},
                            {"list", list},
                            {"next", std::to_string((page + 1) % pages)}}),
                    "text/html; charset=utf-8"};
}

} // namespace vidora::region
