// Each scanner over a page set of 10 MB of its format, next to a bare search for one of the format's markers through
// the same text. The page sets are those that a site of the kind has, with one channel wanted.
#include "bench/GuideTexts.h"
#include "bench/Ratio.h"
#include "listings/Scanner.h"

namespace vidora::bench {
namespace {

constexpr qsizetype setSize = 5'000'000; ///< in UTF-16 units
const Instant now = *instantFromIsoText(u"2026-11-22T12:00:00Z");

/// A format: what stands around the shows of one page, and one show. "%1" is a running number, "%2" a time, "%3" the
/// show's title, "%4" its description.
struct Format
{
    const char* source;
    void (*scan)(const ScanInput& input, Drafts& drafts);
    int pages;
    const char* marker;
    QString head, show, tail;
    /// A second part of the page for each show, where it has one.
    QString detail = {};
};

QString filled(const QString& form, int number, const GuideTexts::Show& show)
{
    const QString time = QStringLiteral("%1:%2")
                             .arg(number / 12 % 24, 2, 10, QLatin1Char('0'))
                             .arg(number % 12 * 5, 2, 10, QLatin1Char('0'));
    return QString(form)
        .replace(QLatin1String("%1"), QString::number(number))
        .replace(QLatin1String("%2"), time)
        .replace(QLatin1String("%3"), show.title)
        .replace(QLatin1String("%4"), show.description);
}

QStringList pageSet(const Format& format)
{
    GuideTexts texts(7);
    QStringList pages;
    int number = 0;
    for (int page = 0; page < format.pages; ++page) {
        QString text = format.head, details;
        while (text.size() + details.size() < setSize / format.pages) {
            const auto show = texts.show(400);
            text += filled(format.show, number, show);
            if (!format.detail.isEmpty())
                details += filled(format.detail, number, show);
            ++number;
        }
        pages.append(text + format.tail + details);
    }
    return pages;
}

std::size_t bareSearch(const QStringList& pages, QStringView marker)
{
    std::size_t count = 0;
    for (const QString& page : pages) {
        for (qsizetype at = page.indexOf(marker); at >= 0; at = page.indexOf(marker, at + marker.size()))
            ++count;
    }
    return count;
}

Format formatOf(int type)
{
    switch (type) {
    case 0:
        return {"12",
                scanPortNetwork,
                1,
                "\"title\"",
                QStringLiteral("{\"d\":{\"channels\":[{\"programs\":["),
                QStringLiteral("{\"id\":%1,\"title\":\"%3\",\"start_datetime\":\"2026-11-22T%2:00+01:00\","
                               "\"short_description\":\"%4\",\"is_repeat\":false},"),
                QStringLiteral("{}]}]}}")};
    case 2:
        return {"_D1",
                scanPalinsesto,
                1,
                "<prg",
                QStringLiteral("<p><giorno data=\"2026-11-22\"><canale id=\"D1\">"),
                QStringLiteral("<prg orainizio=\"%2\"><titolo>%3</titolo><descrizione>%4</descrizione>"
                               "<linkScheda>http://x.example/%1</linkScheda><tipologia>CINEMA</tipologia></prg>"),
                QStringLiteral("</canale></giorno></p>")};
    case 3:
        return {
            "barrandov.x",
            scanBarrandov,
            2,
            "<p class=\"show-detail__about\">",
            QStringLiteral("<h3 class=\"program-channel__title program-channel__title--x\">x</h3>"),
            QStringLiteral("<a href=\"#modal%1\">%3</a>"),
            QStringLiteral("<h3 class=\"program-channel__title program-channel__title--y\">y</h3>"),
            QStringLiteral("<div class=\"remodal\" data-remodal-id=\"modal%1\"><img src=\"/%1\">"
                           "<h2 class=\"show-detail__title\">%3</h2><li><strong>Datum vysílání:</strong> "
                           "22.11.2026 %2</li><li><strong>Repríza:</strong> NE</li>"
                           "<p class=\"show-detail__perex\">Film</p><p class=\"show-detail__about\">%4</p></div>\n")};
    case 4:
        return {"dsk.x",
                scanDsk,
                1,
                "<span><strong>",
                QStringLiteral("<div id=\"tabs-0\"><img alt=\"x\">"),
                QStringLiteral("<span><strong>%2</strong></span> <strong>%3</strong><br />%4<p>"),
                QStringLiteral("<a href=\"http://x\">")};
    case 5:
        return {"joj.x",
                scanJoj,
                1,
                "class=\"time\">",
                QStringLiteral("day=21-11-2026\" class=\"active\"<div class=\"item\">"),
                QStringLiteral("<p class=\"time\">%2</p><a href=\"/%1\" title=\"%3\"><img src=\"/%1\"><p>%4</p>\n"),
                {}};
    case 6:
        return {"x",
                scanPrimaMax,
                1,
                "<time>",
                QStringLiteral("class=\"tab tab-active\"<div class=\"row\">"),
                QStringLiteral("<time>%2</time><h3 class=\"broadcast-title broadcast-title-xs\">%3</h3>"
                               "<p class=\"m-top broadcast-description\">%4</p><img src=\"http://x/%1\">\n"),
                {}};
    case 7:
        return {"-hbo.hr.1",
                scanHbo,
                1,
                "class=\"time\">",
                QStringLiteral("<html><div class=\"channel\"><i class=\"logo_index_1\">"),
                QStringLiteral("<a href=\"/%1\" class=\"show\"><b class=\"time\">%2</b><b class=\"title\">%3</b>"
                               "<p>%4</p></a>\n"),
                QStringLiteral("</html>")};
    case 8:
        return {"cz.nova.x",
                scanNova,
                9,
                "<li class=\"channels-content-show\"",
                QStringLiteral("<b class=\"channels-logo\">x</b>"),
                QStringLiteral("<li class=\"channels-content-show\" data-begin=\"2026-11-22 %2:00\" data-end=\"%1\">"
                               "<span class=\"title\">%3</span><span class=\"description\">%4</span></li>\n"),
                {}};
    case 9:
        return {
            "dolce-sport.1",
            scanDolceSport,
            1,
            "<li class=\"list-group-item\">",
            QStringLiteral("<a data-ls-for=\"d0\"><a data-ls-for=\"d1\"><a data-ls-for=\"d2\"><a data-ls-for=\"d3\">"
                           "<a data-ls-for=\"d4\"><a data-ls-for=\"d5\"><a data-ls-for=\"d6\"><p id=\"d0\">"),
            QStringLiteral("<li class=\"list-group-item\"><b class=\"time\">%2</b><b class=\"name\">%3</b>%4</li>\n"),
            QStringLiteral("<p id=\"d1\"><p id=\"d2\"><p id=\"d3\"><p id=\"d4\"><p id=\"d5\"><p id=\"d6\">")};
    case 10:
        return {"cinestar.hr.1",
                scanCinestar,
                7,
                "<h4 class='title'>",
                QStringLiteral("<html lang=\"hr\"><h2 class=\"date-title\">22.11.2026.</h2><div id='kanal-C1'>"
                               "<a href=\"/0\"><b class='fit-text'> x</b></a>"),
                QStringLiteral("<li class='zanr33'><b class=\"hour\">%2</b><a href=\"/%1\">"
                               "<h4 class='title'>%3</h4></a><p>%4</p></li>\n"),
                {}};
    default:
        return {
            "cc.romania",
            scanRomania,
            7,
            "data-time=\"",
            {},
            QStringLiteral("<li data-time=\"1795%1\"><time>%2</time><h3>%3</h3><a href=\"/%1\">x</a><p>%4</p></li>\n"),
            {}};
    }
}

void scanner(benchmark::State& state)
{
    const Format format = formatOf(static_cast<int>(state.range(0)));
    const QStringList pages = pageSet(format);
    const ChannelItems items = {{ObjectId(), QString::fromLatin1(format.source), std::nullopt}};
    const FixedClock clock(now);
    const Endpoints endpoints;
    const QString marker = QString::fromLatin1(format.marker);
    std::size_t shows = 0;
    Ratio ratio;
    for (auto _ : state) {
        ratio.bare([&] { benchmark::DoNotOptimize(bareSearch(pages, marker)); });
        ratio.work([&] {
            Drafts drafts;
            format.scan(ScanInput{pages, items, now, clock, endpoints}, drafts);
            shows = drafts[ObjectId()].size();
        });
    }
    state.counters["shows"] = double(shows);
    ratio.report(state, 5);
}
BENCHMARK(scanner)->Arg(0)->DenseRange(2, 11)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vidora::bench
