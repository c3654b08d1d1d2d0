#include "sample-region/Documents.h"

#include <algorithm>
#include <array>

namespace vidora::region {

namespace {

constexpr std::array flatCodes{"C5", "I1", "I2", "R4", "KA", "KQ", "KI", "BOING", "CRTN"};
constexpr int days = 7;
constexpr int dayStartHour = 6;

bool isFlat(const std::string& code)
{
    return std::find(flatCodes.begin(), flatCodes.end(), code) != flatCodes.end();
}

/// One element a show, all its fields in attributes.
std::string flatDocument(const DocumentRequest& request, const QTimeZone& zone, QDate today)
{
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<palinsesto versione="2.1">
)";
    for (const auto& [channel, code] : channelsWithPrefix("_"))
        if (isFlat(code))
            for (const Broadcast& show :
                 request.schedule.between(*channel, momentOf(zone, today, 0), momentOf(zone, today.addDays(days), 0)))
                text += filled(
                    R"(  <programma idref="{code}" timestamp="{start}" titolo="{title}" genere="{genre}" durata="{minutes}" />
)",
                    {{"code", code},
                     {"start", localText(zone, show.start, "yyyyMMddHHmm")},
                     {"title", escaped(show.title)},
                     {"genre", show.genreText},
                     {"minutes",
                      std::to_string(
                          std::chrono::duration_cast<std::chrono::minutes>(show.end - show.start).count())}});
    return text + "</palinsesto>\n";
}

std::string nestedShow(const DocumentRequest& request, const QTimeZone& zone, const Broadcast& show)
{
    return filled(R"(<prg orainizio="{start}" orafine="{end}" primaTv="{first}"><titolo>{title}</titolo>)"
                  R"(<paese>{country}</paese><anno>{year}</anno><descrizione>{description}</descrizione>)"
                  R"(<linkScheda>{self}/scheda/{slug}</linkScheda><tipologia>{genre}</tipologia></prg>)",
                  {{"start", localText(zone, show.start, "HH:mm")},
                   {"end", localText(zone, show.end, "HH:mm")},
                   {"first", show.repeat ? "No" : "Si"},
                   {"title", escaped(show.title)},
                   {"country", show.genre == Genre::Film ? show.country : "--"},
                   {"year", show.genre == Genre::Film ? std::to_string(show.year) : "--"},
                   {"description", escaped(show.description)},
                   {"self", request.self},
                   {"slug", show.slug},
                   {"genre", show.genre == Genre::Film ? std::string_view("CINEMA") : show.genreText}});
}

/// Days hold channels, channels hold shows. A day runs from six to six. There is no white space between elements:
/// readers take it for text.
std::string nestedDocument(const DocumentRequest& request, const QTimeZone& zone, QDate today)
{
    std::string text = R"(<?xml version="1.0" encoding="UTF-8"?>
<palinsesti>)";
    for (int d = 0; d < days; ++d) {
        const QDate date = today.addDays(d);
        text += filled("<giorno data=\"{date}\">", {{"date", dateText(date, "yyyy/MM/dd")}});
        for (const auto& [channel, code] : channelsWithPrefix("_")) {
            if (isFlat(code))
                continue;
            text += filled("<canale nome=\"{title}\" id=\"{code}\">", {{"title", channel->title}, {"code", code}});
            for (const Broadcast& show : request.schedule.between(*channel, momentOf(zone, date, dayStartHour),
                                                                  momentOf(zone, date.addDays(1), dayStartHour)))
                text += nestedShow(request, zone, show);
            text += "</canale>";
        }
        text += "</giorno>";
    }
    return text + "</palinsesti>\n";
}

} // namespace

std::optional<Document> palinsestoXml(const DocumentRequest& request)
{
    const QTimeZone zone = zoneNamed("Europe/Rome");
    const QDate today = dateIn(zone, request.now);
    if (request.path == "/dati/palinsesto/palinsesto.xml")
        return Document{flatDocument(request, zone, today), "text/xml"};
    if (request.path == "/export/palinsesto.xml")
        return Document{nestedDocument(request, zone, today), "application/xml;charset=UTF-8"};
    return std::nullopt;
}

} // namespace vidora::region
