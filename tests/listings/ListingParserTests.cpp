#include "listings/ListingParser.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace vidora;

namespace {

constexpr const char* dawn = "2026-11-22T06:00:00Z";

class Receiver final : public ListingReceiver
{
public:
    void storeList(const ObjectId& channel, std::shared_ptr<const ShowList> list) override
    {
        events += 'L';
        lists[channel] = std::move(list);
    }
    void addToSaveSchedule(const ObjectId&) override { events += 'S'; }
    void listingsStored() override { events += '!'; }

    std::string events;
    std::unordered_map<ObjectId, std::shared_ptr<const ShowList>> lists;
};

/// A parse at a moment of the test's own choice.
struct Parse
{
    FixedClock clock{*instantFromIsoText(QString::fromLatin1(dawn))};
    Endpoints endpoints;
    Receiver receiver;
    ObjectId channel = ObjectId::initWithHex(u"0102030405060708090a0b0c");

    ListingParser::Result run(std::uint32_t type, const Pages& pages, const ChannelItems& items)
    {
        return ListingParser(clock, endpoints, receiver).netList(items, pages, clock.now(), type);
    }
    ListingParser::Result run(std::uint32_t type, const Pages& pages, const char* source)
    {
        return run(type, pages, {{channel, QString::fromLatin1(source), QStringLiteral("hu")}});
    }
};

/// A show of the port network: title, start and end as HH:mm of the day; no end where it is empty.
struct Programme
{
    const char* title;
    const char* start;
    const char* end;
};

Page portPage(const std::vector<Programme>& programmes)
{
    const auto date = [](const char* time) {
        return QString(QLatin1String("2026-11-22T") + QLatin1String(time) + QLatin1String(":00Z"));
    };
    QJsonArray shows;
    for (const Programme& programme : programmes) {
        QJsonObject show{{QStringLiteral("title"), QString::fromUtf8(programme.title)},
                         {QStringLiteral("start_datetime"), date(programme.start)}};
        if (*programme.end)
            show.insert(QStringLiteral("end_datetime"), date(programme.end));
        shows.append(show);
    }
    const QJsonObject channel{{QStringLiteral("programs"), shows}};
    const QJsonObject top{{QStringLiteral("a"), QJsonObject{{QStringLiteral("channels"), QJsonArray{channel}}}}};
    return Page::fromText(QString::fromUtf8(QJsonDocument(top).toJson()));
}

/// "title start-end" of each show, in hours and minutes.
std::string lines(const ShowList& list)
{
    const auto time = [](std::optional<Instant> instant) {
        return instant ? isoText(*instant).mid(11, 5).toStdString() : std::string("?");
    };
    std::string result;
    for (const Show& show : list)
        result += show->entry->identificator().value_or(QString()).toStdString() + ' ' + time(show->entry->dateTime()) +
                  '-' + time(show->entry->endDateTime()) + '\n';
    return result;
}

// A feed of all channels is large: what the store has taken over must not be kept until the last list is.
TEST(ListingParser, KeepsNoListThatTheCallerDoesNotKeep)
{
    Parse parse;
    const ChannelItems items{{parse.channel, QStringLiteral("12"), {}}};
    std::string told;
    ListingParser(parse.clock, parse.endpoints, parse.receiver)
        .netList(items, {portPage({{"a", "07:00", "08:00"}})}, parse.clock.now(), 0,
                 [&](const ObjectId&, const std::shared_ptr<const ShowList>& list) { told += lines(*list); });
    EXPECT_EQ(told, "a 07:00-08:00\n");
    EXPECT_EQ(parse.receiver.events, "LS!");
    EXPECT_EQ(parse.receiver.lists.at(parse.channel).use_count(), 1);
}

TEST(ListingParser, CleansUpAndStores)
{
    const struct
    {
        std::vector<Programme> programmes;
        const char* list; ///< nothing: no key
        const char* events;
    } rows[] = {
        {{{"b", "08:00", "09:00"}, {"a", "07:00", "08:00"}}, "a 07:00-08:00\nb 08:00-09:00\n", "LS!"},
        // What is over goes, up to the first show that is not; what is over behind it stays.
        {{{"a", "04:00", "05:00"}, {"b", "05:00", "06:00"}, {"c", "05:30", "06:01"}, {"d", "05:45", "05:50"}},
         "c 05:30-06:01\nd 05:45-05:50\n",
         "LS!"},
        {{{"a", "04:00", ""}, {"b", "05:30", "06:30"}}, "b 05:30-06:30\n", "LS!"},
        {{{"a", "04:00", "05:00"}, {"b", "05:00", "06:00"}}, "a 04:00-05:00\nb 05:00-06:00\n", ""},
        {{{"a", "07:00", ""}}, "a 07:00-?\n", ""},
        // Of two with one start the first stays; a closing placeholder goes first of all.
        {{{"a", "07:00", "08:00"}, {"b", "08:00", "09:00"}, {"c", "07:00", "10:00"}},
         "a 07:00-08:00\nb 08:00-09:00\n",
         "LS!"},
        {{{"a", "07:00", "08:00"}, {"Nema podataka", "08:00", "09:00"}}, "a 07:00-08:00\n", "LS!"},
        {{{"a", "07:00", "08:00"}, {"nema podataka", "08:00", "09:00"}},
         "a 07:00-08:00\nnema podataka 08:00-09:00\n",
         "LS!"},
        {{}, nullptr, ""},
    };
    for (const auto& row : rows) {
        Parse parse;
        const auto result = parse.run(0, {portPage(row.programmes)}, "12");
        ASSERT_EQ(result.count(parse.channel), row.list ? 1u : 0u);
        if (row.list) {
            EXPECT_EQ(lines(*result.at(parse.channel)), row.list);
        }
        EXPECT_EQ(parse.receiver.events, row.events) << (row.list ? row.list : "");
        for (const auto& [channel, list] : result) {
            const bool stored = parse.receiver.lists.count(channel) != 0;
            for (const Show& show : *list)
                EXPECT_EQ(show->entry->language().has_value(), stored) << "a language for stored lists alone";
        }
    }
}

/// A page of DSK with shows of one channel, as pairs of time and title.
QString dskPage(const std::vector<std::pair<QString, QString>>& shows)
{
    QString page = QStringLiteral("<div id=\"tabs-0\"><img alt=\"one\">");
    for (const auto& [time, title] : shows)
        page += QLatin1String("<span><strong>") + time + QLatin1String("</strong></span> <strong>") + title +
                QLatin1String("</strong><br />text<p>");
    return page + QLatin1String("<a href=\"http://x\">");
}

TEST(ListingParser, DerivesEndsOfPagesWithoutThem)
{
    Parse parse;
    const auto page = [](const auto& shows) { return Pages{Page::fromText(dskPage(shows))}; };
    // A closing placeholder goes before ends are derived; 08:00 in Bratislava is 07:00 UTC.
    const auto list = parse.run(
        4,
        page(std::vector<std::pair<QString, QString>>{{QStringLiteral("08:00"), QStringLiteral("a")},
                                                      {QStringLiteral("09:30"), QStringLiteral("b")},
                                                      {QStringLiteral("11:00"), QStringLiteral("Nema podataka")}}),
        "dsk.one");
    EXPECT_EQ(lines(*list.at(parse.channel)), "a 07:00-08:30\nb 08:30-10:30\n");

    // A list emptied by the clean-up keeps its key, and nothing is stored.
    Parse empty;
    const auto none = empty.run(
        4, page(std::vector<std::pair<QString, QString>>{{QStringLiteral("xx:00"), QStringLiteral("a")}}), "dsk.one");
    ASSERT_EQ(none.count(empty.channel), 1u);
    EXPECT_TRUE(none.at(empty.channel)->empty());
    EXPECT_EQ(empty.receiver.events, "");
}

TEST(ListingParser, ChannelsAreStoredInTheirOrder)
{
    Parse parse;
    const QString two = dskPage({{QStringLiteral("08:00"), QStringLiteral("a")}}) +
                        QLatin1String("<img alt=\"two\"><span><strong>09:00</strong> <strong>b</strong><br />c< http");
    const ObjectId second = ObjectId::initWithHex(u"ff02030405060708090a0b0c");
    const auto result = parse.run(4, {Page::fromText(two)},
                                  {{second, QStringLiteral("dsk.two"), QStringLiteral("sk")},
                                   {ObjectId(), QStringLiteral("dsk.none"), std::nullopt},
                                   {parse.channel, QStringLiteral("dsk.one"), std::nullopt}});
    EXPECT_EQ(result.size(), 2u);
    EXPECT_EQ(parse.receiver.events, "LSLS!");
    EXPECT_EQ(parse.receiver.lists.at(second), result.at(second)) << "the store and the caller share one list";
    EXPECT_EQ(result.at(second)->front()->entry->language(), QStringLiteral("sk"));
    EXPECT_EQ(result.at(parse.channel)->front()->entry->language(), std::nullopt);
}

TEST(ListingParser, ReadsJsonAndNothingLikeIt)
{
    const struct
    {
        const char* value;
        bool isJson;
    } rows[] = {
        {"-0.5e+3", true},   {"\"\\\\ \\u010d\\/.5\"", true},
        {"1.", false},       {".5", false},
        {"[01]", false},     {"\"a\\qb\"", false},
        {"\"a\tb\"", false}, {"\"a\\", false},
        {"NaN", false},      {"[1,]", false},
    };
    for (const auto& row : rows) {
        Parse parse;
        const QString page =
            QStringLiteral("\ufeff{\"a\":{\"channels\":[{\"programs\":[{\"title\":\"\ufeffx\",\"start_datetime\":"
                           "\"2026-11-22T07:00:00Z\",\"other\":%1}]}]}}")
                .arg(QString::fromUtf8(row.value));
        const auto result = parse.run(0, {Page::fromText(page)}, "12");
        ASSERT_EQ(result.size(), row.isJson ? 1u : 0u) << row.value;
        if (row.isJson) {
            EXPECT_EQ(lines(*result.at(parse.channel)), "\ufeffx 07:00-?\n");
        }
    }
}

TEST(ListingParser, ReadsDaysOfJsonInTheOrderOfTheDocument)
{
    const auto day = [](const char* key, const char* first, const char* second) {
        return QString::asprintf("\"%s\":{\"x\":\"b\",\"channels\":[{\"programs\":["
                                 "{\"title\":\"%s\",\"start_datetime\":\"2026-11-22T07:00:00Z\"},"
                                 "{\"title\":\"%s\",\"start_datetime\":\"2026-11-22T08:00:00Z\"}]}]}",
                                 key, first, second);
    };
    Parse parse;
    const QString page = QStringLiteral("{\"x\":\"a\",%1,%2,%3}")
                             .arg(day("b", "No information", "first"), day("a\\\"", "No information", "second"),
                                  day("\\u0061", "No information", "third"));
    const auto result = parse.run(0, {Page::fromText(page)}, "12");
    EXPECT_EQ(lines(*result.at(parse.channel)), "No information 07:00-?\nfirst 08:00-?\n");
}

TEST(ListingParser, ExceptionsEndUpWhereTheyShould)
{
    // A time cut off by the end of the page.
    const QString joj = QStringLiteral("day=21-11-2026\" class=\"active\" <div class=\"item\">"
                                       "<p class=\"time\">20:00</p><a href=\"/a\" title=\"x\">"
                                       "<p class=\"time\">20:");
    const QString prima = QStringLiteral("class=\"tab tab-active\"<div class=\"row\"><time>20:00</time>"
                                         "<h3 class=\"broadcast-title broadcast-title-xs\">x</h3>"
                                         "<p class=\"m-top broadcast-description\">y</p><time>20");
    const struct
    {
        std::uint32_t type;
        const char* source;
        Pages pages;
        std::size_t shows;
        bool throws;
    } rows[] = {
        {5, "joj.x", {Page::fromText(joj)}, 1, false},
        {6, "max.prima.example", {Page::fromText(prima)}, 1, false},
        {4, "ds", {Page::fromText(dskPage({}))}, 0, false},
        {4, "dsk.x", {}, 0, false},
        {5, "joj.x", {}, 0, false},
        {6, "x", {}, 0, false},
        {0, "12", {}, 0, true},
        {9, "dolce-sport.1", {}, 0, true},
        {12, "x", {Page::fromText(joj)}, 0, false},
        {0xffffffff, "x", {}, 0, false},
    };
    for (const auto& row : rows) {
        Parse parse;
        if (row.throws) {
            EXPECT_ANY_THROW(parse.run(row.type, row.pages, row.source)) << row.type;
            EXPECT_EQ(parse.receiver.events, "");
            continue;
        }
        const auto result = parse.run(row.type, row.pages, row.source);
        EXPECT_EQ(result.empty() ? 0 : result.at(parse.channel)->size(), row.shows) << row.type;
    }

    const Page guide = Page::fromText(QStringLiteral("<tv><programme channel=\"a\" stop=\"20261123000000 +0000\">"
                                                     "<title>x</title></programme></tv>"));
    Parse nobody;
    EXPECT_ANY_THROW(nobody.run(1, {guide}, ChannelItems())) << "a show, and no channel that it could belong to";
}

TEST(ListingParser, AFaultyPageEndsThePages)
{
    const Page faulty = Page::fromBytes("x", Page::Container::None, "NO-SUCH-CHARSET");
    const Page whole = Page::fromText(dskPage({{QStringLiteral("08:00"), QStringLiteral("a")}}));
    Parse ahead, behind, alone;
    EXPECT_EQ(ahead.run(4, {whole, faulty}, "dsk.one").size(), 1u);
    EXPECT_EQ(behind.run(4, {faulty, whole}, "dsk.one").size(), 0u);
    EXPECT_EQ(alone.run(0, {faulty}, "12").size(), 0u) << "no page is left, so nothing is parsed and nothing raises";
}

} // namespace
