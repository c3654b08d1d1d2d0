#include "sample-region/Documents.h"

#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <set>

namespace vidora::region {

namespace {

constexpr int dayStartHour = 6;

QDate dateOf(const std::string& text, const char* pattern)
{
    return QDate::fromString(QString::fromStdString(text), QLatin1String(pattern));
}

/// Slug of a Barrandov heading: the first word of the channel's name in small letters.
std::string headingSlug(const std::string& name)
{
    return QString::fromStdString(name.substr(0, name.find(' '))).toLower().toStdString();
}

std::string barrandovPopUp(const Broadcast& show, const QTimeZone& zone, const std::string& code)
{
    std::string about = show.description;
    if (!show.cast.empty())
        about += " Hrají: " + joined(show.cast, ", ") + ".";
    return filled(R"(  <div class="remodal" data-remodal-id="modal{code}" role="dialog">
    <button data-remodal-action="close" class="remodal-close"></button>
    <div class="show-detail"><img src="{picture}" alt="">
      <h2 class="show-detail__title">{title}</h2>
      <ul class="show-detail__facts">
        <li><strong>Datum vysílání:</strong> {start}</li>
        <li><strong>Repríza:</strong> {repeat}</li>
      </ul>
      <p class="show-detail__perex">{genre}, {country}, {year}</p>
      <p class="show-detail__about">{about}</p>
    </div>
  </div>
)",
                  {{"code", code},
                   {"picture", show.picture()},
                   {"title", show.title},
                   {"start", localText(zone, show.start, "dd.MM.yyyy HH:mm")},
                   {"repeat", show.repeat ? "ANO" : "NE"},
                   {"genre", show.genreText},
                   {"country", show.country},
                   {"year", std::to_string(show.year)},
                   {"about", about}});
}

const char* novaGenre(Genre genre)
{
    switch (genre) {
    case Genre::Film:
        return "- film";
    case Genre::Series:
        return "- seriál";
    case Genre::Documentary:
        return "- dokument";
    case Genre::News:
        return "- zprávy";
    case Genre::Entertainment:
        return "- zábava";
    case Genre::Sports:
        return "- sport";
    case Genre::Children:
    case Genre::Music:
        break;
    }
    return "";
}

struct HboWords
{
    std::string_view path, speech, title;
};

HboWords hboWords(std::string_view country)
{
    if (country == "hu")
        return {"tvmusor", "hu", "Tévéműsor"};
    if (country == "hr" || country == "ba")
        return {"raspored", "hr", "Raspored"};
    if (country == "ro")
        return {"program", "ro", "Program TV"};
    return {"program", "cs", "Program"};
}

/// The day that a page of "/program/11/22" is for: the one with this month and day that lies nearest to the present.
QDate nearestDate(QDate today, int month, int day)
{
    QDate best;
    for (int year = today.year() - 1; year <= today.year() + 1; ++year)
        if (const QDate date(year, month, day);
            date.isValid() && (!best.isValid() || std::abs(today.daysTo(date)) < std::abs(today.daysTo(best))))
            best = date;
    return best;
}

} // namespace

// The list holds links alone; what they open stands in sections at the foot of the page.
std::optional<Document> barrandovPage(const DocumentRequest& request)
{
    if (request.path != "/program/")
        return std::nullopt;
    const QTimeZone zone = zoneNamed("Europe/Prague");
    QDate date = dateIn(zone, request.now);
    if (!request.date.empty())
        date = dateOf(request.date, "yyyy-MM-dd").addDays(request.dayShift);
    if (!date.isValid())
        return std::nullopt;
    std::string blocks, popUps;
    int station = 0;
    for (const auto& [channel, name] : channelsWithPrefix("barrandov.")) {
        ++station;
        blocks += filled(R"(    <section class="program-channel">
      <h3 class="program-channel__title program-channel__title--{slug}">{name}</h3>
      <ul>
)",
                         {{"slug", headingSlug(name)}, {"name", name}});
        for (const Broadcast& show : request.schedule.between(*channel, momentOf(zone, date, dayStartHour),
                                                              momentOf(zone, date.addDays(1), dayStartHour))) {
            char code[32];
            std::snprintf(code, sizeof code, "%d%010lld", station, static_cast<long long>(unixSeconds(show.start)));
            blocks +=
                filled(R"(        <li><span>{time}</span> <a href="#modal{code}" class="program-show">{title}</a></li>
)",
                       {{"time", localText(zone, show.start, "HH:mm")}, {"code", code}, {"title", show.title}});
            popUps += barrandovPopUp(show, zone, code);
        }
        blocks += "      </ul>\n    </section>\n";
    }
    return Document{filled(R"(<!doctype html>
<html class="no-js" lang="cs">
<head>
  <meta charset="utf-8">
  <title>Program | Lucerna</title>
  <link rel="stylesheet" href="/css/remodal.css">
  <script src="/js/vendor/remodal.min.js" defer></script>
</head>
<body>
  <header><nav><a href="/">Domů</a> <a href="/porady/">Pořady</a> <a href="#onair">Právě běží</a></nav></header>
  <div class="program" id="on-air">
{blocks}    <section class="program-channel">
      <h3 class="program-channel__title program-channel__title--vse">Všechny stanice</h3>
    </section>
  </div>
  <!-- pop-ups -->
{popUps}</body>
</html>
)",
                           {{"blocks", blocks}, {"popUps", popUps}}),
                    "text/html; charset=utf-8"};
}

// All channels of a country on one page a day. A day runs from six to six; what is over bears a mark.
std::optional<Document> hboPage(const DocumentRequest& request, std::string_view country)
{
    const HboWords words = hboWords(country);
    const QTimeZone zone = zoneNamed(vocabulary(words.speech).zone);
    const std::string head = "/" + std::string(words.path) + "/";
    int month = 0, day = 0;
    if (request.path.rfind(head, 0) != 0 ||
        std::sscanf(request.path.c_str() + head.size(), "%2d/%2d", &month, &day) != 2)
        return std::nullopt;
    const QDate date = nearestDate(dateIn(zone, request.now), month, day).addDays(request.dayShift);
    if (!date.isValid())
        return std::nullopt;
    std::string blocks;
    for (const auto& [channel, logo] : channelsWithPrefix("-hbo." + std::string(country) + ".")) {
        blocks += filled(R"(  <div class="channel">
    <img class="logo logo_index_{logo}" src="/img/logo_{logo}.png" alt="{title}">
    <ol>
)",
                         {{"logo", logo}, {"title", channel->title}});
        for (const Broadcast& show : request.schedule.between(*channel, momentOf(zone, date, dayStartHour),
                                                              momentOf(zone, date.addDays(1), dayStartHour)))
            blocks += filled(R"(      <li><a href="/{path}/{slug}" class="{state}">
        <span class="time">{time}</span> <span class="title">{title}{episode}</span></a></li>
)",
                             {{"path", words.path},
                              {"slug", show.slug},
                              {"state", show.end <= request.now ? "show past" : "show"},
                              {"time", localText(zone, show.start, "HH:mm")},
                              {"title", show.title},
                              {"episode", show.episode > 0 ? ", ep. " + std::to_string(show.episode) : ""}});
        blocks += "    </ol>\n  </div>\n";
    }
    return Document{filled(R"(<!DOCTYPE html>
<html lang="{speech}" data-country="{country}">
<head>
  <meta charset="utf-8">
  <title>{title}</title>
  <script>
    app.set("initVariables", {"country": "{country}", "date": "{date}"});
  </script>
</head>
<body>
  <!-- schedule -->
  <nav><ul><li><a href="/movies">{title}</a></li></ul></nav>
{blocks}  <footer><p>&copy;</p></footer>
</body>
</html>
)",
                           {{"speech", words.speech},
                            {"country", country},
                            {"title", words.title},
                            {"date", dateText(date, "yyyy-MM-dd")},
                            {"blocks", blocks}}),
                    "text/html; charset=utf-8"};
}

// All channels of the house, a block each, with full dates.
std::optional<Document> novaPage(const DocumentRequest& request)
{
    const QTimeZone zone = zoneNamed("Europe/Prague");
    const QDate date = dateOf(request.date, "yyyy-MM-dd").addDays(request.dayShift);
    if (request.path != "/program/" || !date.isValid())
        return std::nullopt;
    std::string blocks;
    for (const auto& [channel, code] : channelsWithPrefix("cz.nova.")) {
        blocks +=
            filled("    <div class=\"channels-item\">\n      <span class=\"channels-logo\">{code}</span>\n      <ul>\n",
                   {{"code", code}});
        for (const Broadcast& show : request.schedule.between(*channel, momentOf(zone, date, dayStartHour),
                                                              momentOf(zone, date.addDays(1), dayStartHour)))
            blocks += filled(
                R"(        <li class="channels-content-show" data-id="{slug}" data-begin="{begin}" data-end="{end}">
          <span class="time">{time}</span> <span class="title">{title}</span> <em>{genre}</em>
          <span class="description">{description}</span>
        </li>
)",
                {{"slug", show.slug},
                 {"begin", localText(zone, show.start, "yyyy-MM-dd HH:mm:ss")},
                 {"end", localText(zone, show.end, "yyyy-MM-dd HH:mm:ss")},
                 {"time", localText(zone, show.start, "HH:mm")},
                 {"title", show.title},
                 {"genre", novaGenre(show.genre)},
                 {"description", show.description}});
        blocks += "      </ul>\n    </div>\n";
    }
    const std::string page = filled(R"(<!DOCTYPE html>
<html lang="cs">
<head>
  <meta http-equiv="Content-Type" content="text/html; charset=windows-1250">
  <title>Program Kometa</title>
  <script type="text/javascript">var epgDate = "{date}";</script>
</head>
<body>
  <div id="header"><ul><li class="active"><a href="/program/">Program</a></li></ul></div>
  <!-- channels -->
  <div class="channels">
{blocks}  </div>
</body>
</html>
)",
                                    {{"date", dateText(date, "yyyy-MM-dd")}, {"blocks", blocks}});
    return Document{encoded(page, "WINDOWS-1250"), "text/html; charset=windows-1250"};
}

} // namespace vidora::region
