#include "sample-region/Provider.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace vidora::region {

namespace {

std::optional<Document> fixedPath(const DocumentRequest& request, std::string_view path, std::string_view family)
{
    return request.path == path ? xmltvFeed(request, family) : std::nullopt;
}

std::optional<Document> nothing(const DocumentRequest&)
{
    return std::nullopt;
}

using Request = DocumentRequest;

} // namespace

const std::vector<Provider>& providers()
{
    static const std::vector<Provider> all{
        {"r.0", [](const Request& r) { return xmltvFeed(r, "r"); }},
        {"r.1", [](const Request& r) { return xmltvFeed(r, "r"); }},
        {"n", [](const Request& r) { return fixedPath(r, "/epg.xml", "n"); }},
        {"s", [](const Request& r) { return fixedPath(r, "/losmij/epg.xml.gz", "s"); }},
        {"tvpc", [](const Request& r) { return fixedPath(r, "/guide/tvpc.xml", "tvpc"); }},
        {"weekly", xmltvWeek},
        {".tv", xmltvDayFile},
        {"=.rs", xmltvService},
        {"=.hr", xmltvService},
        {"port", portNetworkJson},
        {"_.0", palinsestoXml},
        {"_.1", palinsestoXml},
        {"barrandov", barrandovPage},
        {"dsk", dskPage},
        {"joj", jojPage},
        {"primaMax", primaMaxPage},
        {"-hbo.hu", [](const Request& r) { return hboPage(r, "hu"); }},
        {"-hbo.hr", [](const Request& r) { return hboPage(r, "hr"); }},
        {"-hbo.cz", [](const Request& r) { return hboPage(r, "cz"); }},
        {"-hbo.ro", [](const Request& r) { return hboPage(r, "ro"); }},
        {"cz.nova", novaPage},
        {"dolce-sport", dolceSportPage},
        {"cinestar", cinestarPage},
        {"cc.romania", romanianPage},
        {"archive", nothing},
        {"imdb", nothing},
    };
    return all;
}

std::string endpointsJson(const std::vector<std::string>& origins)
{
    const auto origin = [&](std::string_view name) {
        const auto& all = providers();
        const auto found = std::find_if(all.begin(), all.end(), [&](const Provider& p) { return p.name == name; });
        return QString::fromStdString(origins.at(std::size_t(found - all.begin())));
    };
    const auto host = [&](std::string_view name) { return QJsonObject{{QStringLiteral("host"), origin(name)}}; };
    QJsonObject json;
    for (const char* family :
         {"n", "s", "dolce-sport", "barrandov", "dsk", "joj", "cz.nova", "port", "archive", "imdb"})
        json[QLatin1String(family)] = host(family);
    const QString hosts = QStringLiteral("hosts"), hostKey = QStringLiteral("host"), word = QStringLiteral("word");
    json[QStringLiteral("r")] = QJsonObject{{QStringLiteral("bases"), QJsonArray{origin("r.0"), origin("r.1")}}};
    json[QStringLiteral("tvpc")] =
        QJsonObject{{QStringLiteral("address"), QString(origin("tvpc") + QStringLiteral("/guide/tvpc.xml"))}};
    json[QStringLiteral("_")] = QJsonObject{{hosts, QJsonArray{origin("_.0"), origin("_.1")}}};
    json[QStringLiteral("=")] = QJsonObject{{hosts, QJsonArray{origin("=.rs"), origin("=.hr")}}};
    QJsonObject national;
    for (const char* country : {"hu", "hr", "cz", "ro"})
        national[QLatin1String(country)] = origin(std::string("-hbo.") + country);
    json[QStringLiteral("-hbo")] = QJsonObject{{hosts, national}};
    json[QStringLiteral("primaMax")] = QJsonObject{{QStringLiteral("sourceId"), QLatin1String(primaMaxSourceId.data())},
                                                   {hostKey, origin("primaMax")}};
    json[QStringLiteral(".tv")] =
        QJsonObject{{hostKey, origin(".tv")},
                    {word, QStringLiteral("epg")},
                    {QStringLiteral("pictures"), QString(origin(".tv") + QStringLiteral("/images/"))}};
    json[QStringLiteral("weekly")] = QJsonObject{{hostKey, origin("weekly")}, {word, QStringLiteral("vodic")}};
    json[QStringLiteral("cc.romania")] =
        QJsonObject{{QStringLiteral("base"), QString(origin("cc.romania") + QStringLiteral("/program-tv"))},
                    {hostKey, origin("cc.romania")}};
    json[QStringLiteral("cinestar")] =
        QJsonObject{{hostKey, origin("cinestar")},
                    {QStringLiteral("schedulePage"), QString(origin("cinestar") + QStringLiteral("/raspored/"))}};
    json[QStringLiteral("credits")] = QJsonObject{{hostKey, QLatin1String(creditsHost.data())}};
    return QJsonDocument(json).toJson(QJsonDocument::Compact).toStdString();
}

} // namespace vidora::region
