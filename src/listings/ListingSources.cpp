#include "listings/ListingSources.h"

#include "listings/DateFormatter.h"
#include "listings/PageScanner.h"
#include "platform/Log.h"

#include <QDateTime>

#include <algorithm>
#include <array>

namespace vidora {

namespace {

/// What the builder of a family is given, and the set that it fills.
struct Request
{
    const QString& id;
    Instant now;
    const Endpoints& endpoints;
    Random& random;
    URLSet urls = {};

    QString origin(const char* family, const char* scheme) const
    {
        return Endpoints::origin(endpoints.hosts.value(QLatin1String(family)), QLatin1String(scheme));
    }

    Instant day(int offset) const { return now + offset * dayStep; }

    QString cut(qsizetype from, qsizetype count) const { return PageScanner(id).units(from, count).toString(); }

    void add(const QString& address)
    {
        const auto url = URL::fromText(address);
        if (!url)
            throw std::invalid_argument("an address is empty");
        if (std::find(urls.begin(), urls.end(), *url) == urls.end())
            urls.push_back(*url);
    }

    /// One address for each day of a span: `stem` and the day in the provider's form and zone.
    void addDays(const QString& stem, const char* form, const QTimeZone& zone, int first, int last)
    {
        const DateFormatter formatter(QLatin1String(form), zone);
        for (int offset = first; offset <= last; ++offset)
            add(stem + formatter.text(day(offset)));
    }
};

QTimeZone zone(const char* name)
{
    return QTimeZone(QByteArray(name));
}

QTimeZone knownZone(QStringView server)
{
    const auto found = timeZoneForServer(server);
    if (!found)
        throw std::invalid_argument("no time zone for the server");
    return *found;
}

/// The server's calendar date at a moment, as QDate; whole seconds, a fraction cut off.
QDate serverDate(Instant instant, const QTimeZone& server)
{
    const QDateTime moment = QDateTime::fromSecsSinceEpoch(unixSeconds(instant), Qt::UTC);
    return moment.addSecs(server.offsetFromUtc(moment)).date();
}

QString dateText(const QDate& date)
{
    return QString::asprintf("%d-%02d-%02d", date.year(), date.month(), date.day());
}

void addRytec(Request& request)
{
    const auto end = PageScanner(request.id).find(u".", 2);
    if (!end)
        throw RangeException("no feed code");
    const QString base = request.endpoints.rytecBases.value(static_cast<int>(request.random.uniform(2)));
    request.add(base + QLatin1String("/rytec") + request.cut(2, end->at - 2) + QLatin1String(".xz"));
}

void addN(Request& request)
{
    request.add(request.origin("n", "http") + QLatin1String("/epg.xml"));
}

void addS(Request& request)
{
    request.add(request.origin("s", "http") + QLatin1String("/losmij/epg.xml.gz"));
}

void addTvpc(Request& request)
{
    request.add(request.endpoints.tvpcAddress);
}

void addDolceSport(Request& request)
{
    request.add(request.origin("dolce-sport", "https") + QLatin1String("/program/") +
                request.id.mid(qsizetype(sizeof("dolce-sport.") - 1)));
}

void addPalinsesto(Request& request)
{
    const std::array<const char*, 9> first = {"C5", "I1", "I2", "R4", "KA", "KQ", "KI", "BOING", "CRTN"};
    const QStringView code = QStringView(request.id).mid(1);
    const bool isFirst =
        std::any_of(first.begin(), first.end(), [code](const char* known) { return code == QLatin1String(known); });
    const QString origin =
        Endpoints::origin(request.endpoints.italianHosts.value(isFirst ? 0 : 1), QLatin1String("https"));
    request.add(origin + QLatin1String(isFirst ? "/dati/palinsesto" : "/export") + QLatin1String("/palinsesto.xml"));
}

void addAddress(Request& request)
{
    request.add(request.id);
}

void addBarrandov(Request& request)
{
    const QString base = request.origin("barrandov", "https") + QLatin1String("/program/");
    const DateFormatter formatter(QStringLiteral("yyyy-MM-dd"), zone("Europe/Prague"));
    request.add(base + QLatin1String("#onair"));
    request.add(base + QLatin1String("?day=") + formatter.text(request.day(1)) + QLatin1String("#on-air"));
}

void addDsk(Request& request)
{
    request.add(request.origin("dsk", "https") + QLatin1String("/program/"));
}

void addJoj(Request& request)
{
    request.addDays(request.origin("joj", "http") + QLatin1String("/cz/cz-program/?day="), "d-M-yyyy",
                    zone("Europe/Bratislava"), -1, 5);
}

void addHbo(Request& request)
{
    const QString country = request.cut(5, 2);
    const auto host = request.endpoints.hboHosts.constFind(country);
    if (host == request.endpoints.hboHosts.constEnd())
        throw std::invalid_argument("no host for the country");
    const char* word = "program";
    if (country == QLatin1String("hu"))
        word = "tvmusor";
    else if (country == QLatin1String("hr") || country == QLatin1String("ba"))
        word = "raspored";
    const QString stem =
        Endpoints::origin(*host, QLatin1String("https")) + QLatin1Char('/') + QLatin1String(word) + QLatin1Char('/');
    request.addDays(stem, "MM/dd", knownZone(request.id), -1, 21);
}

void addPrimaMax(Request& request)
{
    const QString host = request.endpoints.primaMax.host.value_or(request.id);
    const QString page = Endpoints::origin(host, QLatin1String("https")) + QLatin1String("/tv-program");
    request.add(page);
    request.addDays(page + QLatin1Char('/'), "yyyy-MM-dd", zone("Europe/Prague"), 1, 3);
}

void addNova(Request& request)
{
    request.addDays(request.origin("cz.nova", "https") + QLatin1String("/program/?epg_date="), "yyyy-MM-dd",
                    zone("Europe/Prague"), -1, 7);
}

void addTv(Request& request)
{
    const QTimeZone server = knownZone(u"hr");
    const auto& tv = request.endpoints.tv;
    const QString stem = Endpoints::origin(tv.host, QLatin1String("http")) + QLatin1String("/export/xmltv/") +
                         request.id + tv.word + QLatin1Char('_');
    for (int offset = -1; offset <= 5; ++offset)
        request.add(stem + dateText(serverDate(request.day(offset), server)) + QLatin1String(".xml"));
}

void addRomania(Request& request)
{
    const QString& base = request.endpoints.romania.base;
    request.add(base);
    for (int page = 1; page <= 6; ++page)
        request.add(base + QLatin1String("?page=") + QString::number(page));
}

void addCinestar(Request& request)
{
    const QString label = request.cut(9, 2);
    QString origin = Endpoints::origin(request.endpoints.cinestar.host, QLatin1String("https"));
    // A host with a port is one machine for all countries.
    const bool hasPort = origin.lastIndexOf(QLatin1Char(':')) > origin.indexOf(QLatin1String("://"));
    if (!hasPort)
        origin += label;
    const QString page = origin + QLatin1String("/raspored/");
    request.add(page);
    for (int day = 2; day <= 7; ++day)
        request.add(page + QLatin1String("?dan=") + QString::number(day));
}

void addEquals(Request& request)
{
    for (int offset = 0; offset <= 10; ++offset) {
        const std::uint32_t chosen = request.random.uniform(2);
        const QDate date = serverDate(request.day(offset), knownZone(chosen == 0 ? u"rs" : u"hr"));
        request.add(
            Endpoints::origin(request.endpoints.equalsHosts.value(static_cast<int>(chosen)), QLatin1String("https")) +
            QLatin1String("/xmltv/service.ashx?kanal_id") + request.id +
            QString::asprintf("&date=%d.%d.%d.", date.day(), date.month(), date.year()));
    }
}

void addPortNetwork(Request& request)
{
    const std::array<std::int64_t, 26> shortSpans = {41,    63,    69,    71,    151,   152,   156,   165,   170,
                                                     197,   236,   264,   10078, 10110, 10113, 10123, 10124, 10142,
                                                     10197, 10354, 20095, 40021, 40028, 40078, 60046, 60050};
    const bool isShort = std::find(shortSpans.begin(), shortSpans.end(), leadingNumber(request.id)) != shortSpans.end();
    const QTimeZone server = knownZone(u"hu");
    request.add(request.origin("port", "https") + QLatin1String("/tvapi?channel_id=tvchannel-") + request.id +
                QLatin1String("&i_datetime_from=") + dateText(serverDate(request.now, server)) +
                QLatin1String("&i_datetime_to=") + dateText(serverDate(request.day(isShort ? 4 : 7), server)));
}

void addWeekly(Request& request)
{
    const auto& weekly = request.endpoints.weekly;
    request.add(Endpoints::origin(weekly.host, QLatin1String("https")) + QLatin1String("/xmltv/data/") + request.id +
                QLatin1String("/weekly_") + request.id + QLatin1Char('_') + weekly.word + QLatin1String(".xml"));
}

using Builder = void (*)(Request&);

/// The family's builder: the first test that holds decides. Not the order of the listing types: there the suffix
/// ".tv" wins over every prefix.
Builder builderFor(const QString& id, const Endpoints& endpoints)
{
    const auto begins = [&id](const char* prefix) { return id.startsWith(QLatin1String(prefix)); };
    const struct
    {
        bool holds;
        Builder builder;
    } families[] = {
        {begins("r."), addRytec},
        {begins("n."), addN},
        {begins("s."), addS},
        {begins("tvpc."), addTvpc},
        {begins("dolce-sport."), addDolceSport},
        {begins("_"), addPalinsesto},
        {begins("http"), addAddress},
        {begins("barrandov."), addBarrandov},
        {begins("dsk."), addDsk},
        {begins("joj."), addJoj},
        {begins("-hbo."), addHbo},
        {id == endpoints.primaMax.sourceId, addPrimaMax},
        {begins("cz.nova."), addNova},
        {id.endsWith(QLatin1String(".tv")), addTv},
        {id == QLatin1String("cc.romania"), addRomania},
        {begins("cinestar."), addCinestar},
        {begins("="), addEquals},
        {sourceIdUsedByPortNetwork(id), addPortNetwork},
    };
    for (const auto& family : families) {
        if (family.holds)
            return family.builder;
    }
    return addWeekly;
}

} // namespace

bool sourceIdUsedByPortNetwork(const QString& sourceId)
{
    bool fits = false;
    const int value = sourceId.toInt(&fits);
    return fits && QString::number(value) == sourceId;
}

std::uint32_t listingsTypeForSourceId(const QString& sourceId, const Endpoints& endpoints)
{
    const auto begins = [&sourceId](const char* prefix) { return sourceId.startsWith(QLatin1String(prefix)); };
    const struct
    {
        bool holds;
        std::uint32_t type;
    } rules[] = {
        {sourceId.endsWith(QLatin1String(".tv")), 1},
        {begins("_"), 2},
        {begins("barrandov."), 3},
        {begins("dsk."), 4},
        {begins("joj."), 5},
        {begins("-hbo."), 7},
        {sourceId == endpoints.primaMax.sourceId, 6},
        {begins("cz.nova."), 8},
        {begins("dolce-sport."), 9},
        {begins("cinestar."), 10},
        {sourceIdUsedByPortNetwork(sourceId), 0},
        {sourceId == QLatin1String("cc.romania"), 11},
    };
    for (const auto& rule : rules) {
        if (rule.holds)
            return rule.type;
    }
    return 1;
}

std::optional<URLSet> urlsForSourceId(const QString& sourceId, Instant now, const std::optional<QString>&,
                                      const Endpoints& endpoints, Random& random)
{
    try {
        Request request{sourceId, now, endpoints, random};
        builderFor(sourceId, endpoints)(request);
        return std::move(request.urls);
    } catch (const std::exception& exception) {
        Log::line(QLatin1String("no addresses for ") + sourceId + QLatin1String(": ") +
                  QString::fromUtf8(exception.what()));
        return std::nullopt;
    }
}

std::optional<QTimeZone> timeZoneForServer(QStringView server)
{
    static const QHash<QString, QTimeZone> zones = {
        {QStringLiteral("ro"), zone("Europe/Bucharest")}, {QStringLiteral("sk"), zone("Europe/Bratislava")},
        {QStringLiteral("hu"), zone("Europe/Budapest")},  {QStringLiteral("hr"), zone("Europe/Zagreb")},
        {QStringLiteral("rs"), zone("Europe/Belgrade")},  {QStringLiteral("cz"), zone("Europe/Prague")},
        {QStringLiteral("ba"), zone("Europe/Sarajevo")},
    };
    const QString key = PageScanner(server).slice(server.size() - 2, server.size()).toString();
    const auto found = zones.constFind(key);
    return found == zones.constEnd() ? std::nullopt : std::optional(*found);
}

} // namespace vidora
