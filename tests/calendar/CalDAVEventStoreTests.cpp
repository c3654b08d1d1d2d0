#include "CalDAVFixture.h"
#include "calendar/DAVMultistatus.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;
using Fault = FaultySession::Fault;

TEST_F(CalDAVEventStoreTest, FindsTheCalendarsOfAnAccount)
{
    const auto store = open();
    EXPECT_EQ(store->authorizationStatusForEntityType(EntityType::Event), AuthorizationStatus::NotDetermined);
    store->requestAccessToEntityType(EntityType::Event, [](bool granted, const auto& error) {
        EXPECT_TRUE(granted);
        EXPECT_FALSE(error) << error->localizedDescription.toStdString();
    });
    const auto calendars = store->calendarsForEntityType(EntityType::Event);
    ASSERT_EQ(calendars.size(), 3U);
    const std::vector<std::pair<const char*, bool>> expected{{"Home", true}, {"Shared", false}, {"TV", true}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(calendars[i].title, QString::fromLatin1(expected[i].first));
        EXPECT_EQ(calendars[i].allowsContentModifications, expected[i].second) << expected[i].first;
    }
    EXPECT_EQ(calendars[2].color, (CalendarColor{1, 0, 128 / 255.0, 1}));
    EXPECT_EQ(calendars[2].source, QStringLiteral("Work"));
}

TEST_F(CalDAVEventStoreTest, CarriesEventsBetweenDevicesAndOtherPrograms)
{
    const auto store = open();
    const auto other = open("b");
    ASSERT_FALSE(store->refresh());
    Event event = save(*store, QStringLiteral("Dnevnik, čas"));
    save(*store, QStringLiteral("Film"), start + dayStep);
    const QStringList lines = linesOfKhal(server.calendar("tv"));
    ASSERT_EQ(lines.size(), 2) << lines.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(lines[0].startsWith(QStringLiteral("2026-11-22 19:00 Dnevnik, čas|Lipa 1|"))) << lines[0].toStdString();

    const QByteArray foreign = foreignEvent("w", "20261122T200000Z");
    writeRaw(server.calendar("tv") + QStringLiteral("/with space & more.ics"), foreign);
    ASSERT_FALSE(other->refresh());
    auto events = all(*other);
    ASSERT_EQ(events.size(), 3U);
    EXPECT_EQ(events[0].url, event.url);
    EXPECT_EQ(events[0].alarms, event.alarms);
    EXPECT_EQ(events[1].title, QStringLiteral("Dentist, \u00E9tage 2"));
    events[0].startDate -= std::chrono::minutes(30);
    ASSERT_FALSE(other->saveEvent(events[0], EventSpan::ThisEvent));
    ASSERT_FALSE(other->removeEvent(events[2], EventSpan::ThisEvent, true));
    ASSERT_FALSE(store->refresh());
    EXPECT_EQ(store->eventWithIdentifier(event.eventIdentifier)->startDate, start - std::chrono::minutes(30));
    save(*other, QStringLiteral("Dnevnik, čas")); // by its address the event that was moved
    clock.advance(Seconds(3600));
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(store->eventWithIdentifier(event.eventIdentifier)->startDate, start);
    EXPECT_EQ(all(*store).size(), 2U);
    EXPECT_EQ(readRaw(server.calendar("tv") + QStringLiteral("/with space & more.ics")), foreign);
}

TEST_F(CalDAVEventStoreTest, AsksLittleWhenThereIsNothingToDo)
{
    const auto store = open();
    ASSERT_FALSE(store->refresh());
    for (int i = 0; i < 5; ++i)
        save(*store, QStringLiteral("Show %1").arg(i));
    ASSERT_FALSE(store->refresh());
    session.requests = 0;
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(session.requests, 0); // just asked
    clock.advance(Seconds(3600));
    store->refreshSourcesIfNecessary();
    ASSERT_FALSE(store->commit());
    EXPECT_EQ(session.requests, 1) << "for three calendars";
    const auto restarted = open();
    session.requests = 0;
    restarted->refreshSourcesIfNecessary();
    EXPECT_LE(session.requests, 2) << "the question who asks included";
}

TEST_F(CalDAVEventStoreTest, KeepsChangesUntilThereIsANetwork)
{
    auto store = open();
    ASSERT_FALSE(store->refresh());
    Event kept = save(*store, QStringLiteral("Kept"));
    const Event removed = save(*store, QStringLiteral("Removed"));
    session.fault = Fault::Silence;
    kept.title = QStringLiteral("First");
    ASSERT_FALSE(store->saveEvent(kept, EventSpan::ThisEvent));
    kept.title = QStringLiteral("Second");
    ASSERT_FALSE(store->saveEvent(kept, EventSpan::ThisEvent));
    ASSERT_FALSE(store->removeEvent(removed, EventSpan::ThisEvent, true));
    save(*store, QStringLiteral("New"));
    const Event gone = save(*store, QStringLiteral("Gone again"));
    ASSERT_FALSE(store->removeEvent(gone, EventSpan::ThisEvent, true));
    EXPECT_EQ(store->unsentChanges(), 4);
    store = open();
    EXPECT_EQ(all(*store).size(), 2U);
    EXPECT_TRUE(store->refresh());
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("Kept"), 1}, {QStringLiteral("Removed"), 1}}));
    session.fault = Fault::None;
    session.requests = 0;
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(session.requests, 0); // left alone for a while
    clock.advance(Seconds(3600));
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(store->unsentChanges(), 0);
    EXPECT_EQ(titles(), (std::map<QString, int>{{QStringLiteral("Second"), 1}, {QStringLiteral("New"), 1}}));
}

TEST_F(CalDAVEventStoreTest, PutsItsChangesOnTopOfThoseThatOthersMade)
{
    const auto store = open();
    ASSERT_FALSE(store->refresh());
    Event moved = save(*store, QStringLiteral("Moved by hand"));
    Event gone = save(*store, QStringLiteral("Gone by hand"), start + dayStep);
    const auto pathOf = [&](const Event& event) -> QString {
        return server.calendar("tv") + event.eventIdentifier.mid(event.eventIdentifier.indexOf(QLatin1Char('/')));
    };
    const QByteArray byHand = readRaw(pathOf(moved)).replace("T190000Z", "T170000Z").replace("T194500Z", "T174500Z");
    writeRaw(pathOf(moved), QByteArray(byHand).replace("END:VEVENT", "COMMENT:popcorn\r\nEND:VEVENT"));
    QFile::remove(pathOf(gone));
    moved.title = gone.title = QStringLiteral("Ours");
    EXPECT_FALSE(store->saveEvent(moved, EventSpan::ThisEvent, false));
    EXPECT_FALSE(store->saveEvent(gone, EventSpan::ThisEvent));
    EXPECT_EQ(store->unsentChanges(), 0);
    EXPECT_TRUE(readRaw(pathOf(moved)).contains("SUMMARY:Ours\r\n"));
    EXPECT_TRUE(readRaw(pathOf(moved)).contains("COMMENT:popcorn\r\n"));
    ASSERT_EQ(all(*store).size(), 1U) << "what is gone stays gone";
    EXPECT_EQ(all(*store)[0].startDate, moment("2026-11-22T17:00:00Z"));

    Event back = all(*store)[0]; // changed there and changed here: what was done last to a property stands
    writeRaw(pathOf(moved), readRaw(pathOf(moved)).replace("-PT10M", "-PT5M").replace("popcorn", "crisps"));
    back.startDate = start;
    back.endDate = start + std::chrono::minutes(45);
    EXPECT_FALSE(store->saveEvent(back, EventSpan::ThisEvent));
    EXPECT_EQ(all(*store)[0].startDate, start);
    EXPECT_EQ(all(*store)[0].alarms, std::vector{EventAlarm{Seconds(-300)}});
    EXPECT_TRUE(readRaw(pathOf(moved)).contains("COMMENT:crisps\r\n"));

    writeRaw(pathOf(moved), readRaw(pathOf(moved)).replace("crisps", "nuts"));
    EXPECT_FALSE(store->removeEvent(back, EventSpan::ThisEvent, true));
    EXPECT_TRUE(titles().empty()) << "a removal is not given up for a comment";
    Event series = save(*store, QStringLiteral("Series"));
    writeRaw(pathOf(series), readRaw(pathOf(series)).replace("END:VEVENT", "RRULE:FREQ=DAILY\r\nEND:VEVENT"));
    EXPECT_FALSE(store->removeEvent(series, EventSpan::ThisEvent, true));
    EXPECT_EQ(titles().size(), 1U) << "one that repeats is the user's";
    EXPECT_EQ(store->unsentChanges(), 0);
}

TEST_F(CalDAVEventStoreTest, DoesNotInsistOnAWrongPassword)
{
    const auto store = open("a", "wrong");
    const auto error = store->refresh();
    ASSERT_TRUE(error);
    EXPECT_TRUE(error->localizedDescription.contains(QStringLiteral("401")));
    EXPECT_FALSE(error->localizedDescription.contains(QStringLiteral("wrong")));
    session.requests = 0;
    clock.advance(Seconds(600));
    store->refreshSourcesIfNecessary();
    EXPECT_EQ(session.requests, 0);
}

/// A server that asks for a password, or sends whoever asks elsewhere.
class GreedySession final : public URLSession
{
public:
    URLResult perform(const URLRequest& request) override
    {
        addresses << request.url.text();
        credentials = credentials || request.credentials.has_value();
        URLResponse response;
        response.statusCode = elsewhere.isEmpty() ? 401 : 301;
        if (elsewhere.isEmpty())
            response.headerFields.set("WWW-Authenticate", "Basic realm=\"x\"");
        else
            response.headerFields.set("Location", elsewhere);
        return {QByteArray(), response, std::nullopt};
    }

    QByteArray elsewhere;
    QStringList addresses;
    bool credentials = false;
};

TEST(CalDAVClient, GivesAPasswordToNobodyElse)
{
    const std::vector<std::pair<const char*, bool>> hosts{{"calendar.example", true},
                                                          {"https://calendar.example/x", true},
                                                          {"http://calendar.example", false},
                                                          {"http://127.0.0.1.calendar.example", false}};
    ScriptedSleeper sleeper;
    for (const auto& [address, given] : hosts) {
        GreedySession session;
        std::vector<QUrl> homes;
        CalDAVClient client(session, sleeper,
                            {QString::fromLatin1(address), QStringLiteral("ana"), QStringLiteral("p")});
        EXPECT_EQ(client.discover(homes).outcome, CalDAVClient::Outcome::Refused);
        EXPECT_EQ(session.credentials, given) << address;
    }
    for (const char* target : {"https://evil.example/", "http://calendar.example/", "https://xcalendar.example/",
                               "file:///etc/passwd", "//evil.example"}) {
        GreedySession session;
        session.elsewhere = target;
        std::vector<QUrl> homes;
        CalDAVClient client(session, sleeper, {QStringLiteral("calendar.example"), QStringLiteral("ana"), {}});
        EXPECT_NE(client.discover(homes).outcome, CalDAVClient::Outcome::Done);
        for (const QString& address : session.addresses)
            EXPECT_TRUE(address.startsWith(QStringLiteral("https://calendar.example/"))) << address.toStdString();
    }
}

/// Answers a question about the way to the calendars by what stands for its address.
class MappedSession final : public URLSession
{
public:
    URLResult perform(const URLRequest& request) override
    {
        asked << request.url.text();
        credentials << (request.credentials ? request.url.text() : QString());
        URLResponse response;
        const auto body = bodies.find(request.url.text());
        response.statusCode = request.credentials ? (body == bodies.end() ? 404 : 207) : 401;
        response.headerFields.set("WWW-Authenticate", "Basic realm=\"x\"");
        return {"<multistatus xmlns=\"DAV:\"><response><href>/x/</href><propstat><prop>" +
                    (body == bodies.end() ? QByteArray() : body->second) +
                    "</prop><status>HTTP/1.1 200 OK</status></propstat></response></multistatus>",
                response, std::nullopt};
    }
    std::map<QString, QByteArray> bodies;
    QStringList asked, credentials;
};

class OneService final : public ServiceLookup
{
public:
    std::optional<ServiceLocation> find(const QString& service, const QString& domain) override
    {
        EXPECT_EQ(service, QStringLiteral("_caldavs._tcp"));
        EXPECT_EQ(domain, QStringLiteral("example.org"));
        return ServiceLocation{QStringLiteral("dav.example.org"), 8443, QStringLiteral("/cal")};
    }
};

TEST(CalDAVClient, FindsItsWayAndAsksBeforeItLeavesTheHost)
{
    const auto homes = [](std::initializer_list<const char*> hrefs) -> QByteArray {
        QByteArray text = "<calendar-home-set>";
        for (const char* href : hrefs)
            text += QByteArray("<href>") + href + "</href>";
        return text + "</calendar-home-set>";
    };
    ScriptedSleeper sleeper;
    OneService services;
    CalDAVAccount account{QStringLiteral("example.org"), QStringLiteral("ana"), QStringLiteral("p")};
    MappedSession session;
    session.bodies[QStringLiteral("https://dav.example.org:8443/cal")] =
        homes({"/home/a/", "/home/b/", "//evil.example/c/", "https://dav.example.org:8443//evil.example/d/",
               "https://dav.example.org/e/", "https://evil.example/f/"});
    {
        CalDAVClient client(session, sleeper, account, &services);
        const auto findings = client.examine();
        EXPECT_EQ(findings.trouble, CalDAVClient::Trouble::Elsewhere);
        EXPECT_EQ(findings.elsewhere, QStringLiteral("https://dav.example.org:8443"));
    }
    session.credentials.clear();
    account.origins << QStringLiteral("https://dav.example.org:8443");
    CalDAVClient client(session, sleeper, account, &services);
    std::vector<QUrl> found;
    EXPECT_TRUE(client.discover(found).isDone());
    EXPECT_EQ(found, (std::vector{QUrl(QStringLiteral("https://dav.example.org:8443/home/a/")),
                                  QUrl(QStringLiteral("https://dav.example.org:8443/home/b/"))}));
    for (const QString& address : session.credentials)
        EXPECT_TRUE(address.isEmpty() || address.startsWith(QStringLiteral("https://dav.example.org:8443/")))
            << address.toStdString();
    CalDAVClient::RemoteEvent event;
    for (const char* other : {"http://example.org/a.ics", "https://example.org:444/a.ics",
                              "https://a.example.org/a.ics", "https://dav.example.org/a.ics"}) {
        const int before = static_cast<int>(session.asked.size());
        EXPECT_FALSE(client.get(QUrl(QString::fromLatin1(other)), event).isDone());
        EXPECT_EQ(session.asked.size(), before) << other;
    }
}

TEST(DAVMultistatus, ReadsWhatServersWrite)
{
    const QByteArray whole =
        "<?xml version=\"1.0\"?><multistatus xmlns=\"DAV:\" xmlns:C=\"urn:ietf:params:xml:ns:caldav\">"
        "<response><href>/a%20b/</href><propstat><prop><resourcetype><collection/><C:calendar/></resourcetype>"
        "<displayname>A &amp; B</displayname><C:supported-calendar-component-set><C:comp name=\"VEVENT\"/>"
        "</C:supported-calendar-component-set></prop><status>HTTP/1.1 200 OK</status></propstat>"
        "<propstat><prop><getetag>x</getetag></prop><status>HTTP/1.1 404 Not Found</status></propstat></response>"
        "<response><href>/gone</href><status>HTTP/1.1 404 Not Found</status></response>"
        "<sync-token>t</sync-token></multistatus>";
    const auto read = DAVMultistatus::read(whole);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->responses.size(), 2U);
    EXPECT_EQ(read->responses[0].text("displayname"), "A & B");
    EXPECT_TRUE(read->responses[0].has("resourcetype", "calendar"));
    EXPECT_TRUE(read->responses[0].has("supported-calendar-component-set", "VEVENT"));
    EXPECT_FALSE(read->responses[0].texts.contains("getetag"));
    EXPECT_EQ(read->responses[1].status, 404);
    EXPECT_EQ(read->syncToken, QStringLiteral("t"));
    QByteArray bomb = "<!DOCTYPE m [<!ENTITY e0 \"boom\">";
    for (int i = 1; i < 12; ++i)
        bomb += "<!ENTITY e" + QByteArray::number(i) + " \"" +
                QByteArray("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
    bomb += "]><multistatus xmlns=\"DAV:\"><response><href>&e11;</href></response></multistatus>";
    const auto responses = [](int count) -> QByteArray {
        return "<multistatus xmlns=\"DAV:\">" + QByteArray("<response><href>/a</href></response>").repeated(count) +
               "</multistatus>";
    };
    EXPECT_TRUE(DAVMultistatus::read(responses(50'000)));
    for (const QByteArray& broken :
         {whole.left(whole.size() - 5), QByteArray("<html><body/></html>"), QByteArray(), bomb, responses(50'001),
          QByteArray("<multistatus xmlns=\"DAV:\">" + QByteArray("<a>").repeated(100'000))})
        EXPECT_FALSE(DAVMultistatus::read(broken)) << broken.left(200).toStdString();
    QByteArray many = "<multistatus><response><href>/a</href><propstat><prop>";
    for (int i = 0; i < 100'000; ++i)
        many += "<p" + QByteArray::number(i) + "/>";
    many += "</prop><status>HTTP/1.1 200 OK</status></propstat></response></multistatus>";
    EXPECT_LT(DAVMultistatus::read(many)->responses.at(0).texts.size(), 100U);
}

} // namespace
} // namespace vidora
