// Servers and gateways that refuse, weaken, lose and mislead.
#include "CalDAVFixture.h"
#include "calendar/CalendarAccounts.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

using namespace test;
using Fault = FaultySession::Fault;

/// A session that may answer in the server's place, or change what it answers.
class GatewaySession final : public URLSession
{
public:
    explicit GatewaySession(URLSession& session)
        : m_session(session)
    {
    }
    URLResult perform(const URLRequest& request) override
    {
        {
            const std::lock_guard lock(m_mutex);
            if (auto given = answer ? answer(request) : std::nullopt)
                return *given;
        }
        URLResult result = m_session.perform(request);
        const std::lock_guard lock(m_mutex);
        if (change)
            change(request, result);
        return result;
    }
    static URLResult status(int code, const QByteArray& body = {}, const char* field = nullptr,
                            const QByteArray& value = {})
    {
        URLResponse response;
        response.statusCode = code;
        if (field)
            response.headerFields.set(field, value);
        return {body, response, std::nullopt};
    }

    std::function<std::optional<URLResult>(const URLRequest&)> answer;
    std::function<void(const URLRequest&, URLResult&)> change;

private:
    std::mutex m_mutex;
    URLSession& m_session;
};

class CalDAVRefusalTest : public CalDAVEventStoreTest
{
protected:
    std::unique_ptr<CalDAVEventStore> openBehind()
    {
        return std::make_unique<CalDAVEventStore>(
            home.filePath(QStringLiteral("a")), QStringLiteral("Work"),
            CalDAVAccount{server.address(), QStringLiteral("ana"), QStringLiteral("s3cret")}, gateway, clock, random,
            sleeper);
    }
    QString pathOf(const Event& event) const
    {
        return server.calendar("tv") + event.eventIdentifier.mid(event.eventIdentifier.indexOf(QLatin1Char('/')));
    }
    void later(EventStore& store, Seconds time = Seconds(3600))
    {
        clock.advance(time);
        store.refreshSourcesIfNecessary();
    }

    GatewaySession gateway{session};
};

TEST_F(CalDAVRefusalTest, WhatIsRefusedIsToldAndEnds)
{
    auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    Event refused = save(*store, QStringLiteral("Refused"));
    Event taken = save(*store, QStringLiteral("Taken"));
    int sent = 0;
    gateway.answer = [&](const URLRequest& request) -> std::optional<URLResult> {
        if (request.httpMethod != "PUT" || !request.httpBody->contains("Refused"))
            return std::nullopt;
        ++sent;
        return GatewaySession::status(403,
                                      "<?xml version='1.0'?><d:error xmlns:d='DAV:'><d:need-privileges/></d:error>");
    };
    refused.startDate -= Seconds(600);
    taken.startDate -= Seconds(600);
    EXPECT_FALSE(store->saveEvent(refused, EventSpan::ThisEvent, false));
    EXPECT_FALSE(store->saveEvent(taken, EventSpan::ThisEvent, true));
    EXPECT_TRUE(readRaw(pathOf(taken)).contains("T185000Z")) << "the others go on";
    for (int i = 0; i < 5; ++i)
        later(*store);
    EXPECT_EQ(sent, CalDAVMirror::mostTries);
    EXPECT_EQ(store->unsentChanges(), 0);
    store = openBehind();
    const auto refusals = store->refusals();
    ASSERT_EQ(refusals.size(), 1U);
    EXPECT_EQ(refusals[0].title, QStringLiteral("Refused"));
    EXPECT_EQ(refusals[0].calendar, QStringLiteral("TV"));
    EXPECT_TRUE(refusals[0].reason.contains(QStringLiteral("403 (need-privileges)")))
        << refusals[0].reason.toStdString();

    writeRaw(pathOf(refused), readRaw(pathOf(refused)).replace("Lipa 1", "Elsewhere"));
    later(*store);
    EXPECT_EQ(store->eventWithIdentifier(refused.eventIdentifier)->location, QStringLiteral("Elsewhere"))
        << "it takes part again";
    EXPECT_TRUE(store->refusals().empty());

    refused = *store->eventWithIdentifier(refused.eventIdentifier);
    refused.startDate -= Seconds(1200);
    EXPECT_FALSE(store->saveEvent(refused, EventSpan::ThisEvent));
    for (int i = 0; i < 5; ++i)
        later(*store);
    gateway.answer = {};
    EXPECT_FALSE(store->refresh()) << "who asks by hand sends it once more";
    EXPECT_TRUE(store->refusals().empty());
    EXPECT_TRUE(readRaw(pathOf(refused)).contains("T184000Z"));
}

TEST_F(CalDAVRefusalTest, WhoAsksForTimeIsGivenIt)
{
    auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    for (const auto& [code, value] : {std::pair(429, "1800"), std::pair(503, "Sun, 22 Nov 2026 12:30:00 GMT")}) {
        int asked = 0;
        gateway.answer = [&, code = code, value = value](const URLRequest&) {
            ++asked;
            URLResult result = GatewaySession::status(code, {}, "Retry-After", value);
            result.response->headerFields.set("Date", "Sun, 22 Nov 2026 12:00:00 GMT");
            return result;
        };
        later(*store);
        EXPECT_EQ(asked, 1) << "not at once again";
        store = openBehind();
        later(*store, Seconds(1700));
        EXPECT_EQ(asked, 1) << "nor after a restart";
        gateway.answer = {};
        const int before = session.requests;
        later(*store, Seconds(200));
        EXPECT_GT(session.requests, before);
    }
}

TEST_F(CalDAVRefusalTest, SendsThroughGatewaysThatWeakenTags)
{
    gateway.change = [](const URLRequest& request, URLResult& result) {
        const auto tag = result.response ? result.response->headerFields.value("ETag") : std::nullopt;
        if (tag && request.headerFields.value("Accept-Encoding") != "identity")
            result.response->headerFields.set("ETag", "W/" + *tag);
        else if (tag) // the other way in which gateways mark what they compressed
            result.response->headerFields.set("ETag", QByteArray(*tag).insert(tag->size() - 1, "-gzip"));
    };
    const auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    Event event = save(*store, QStringLiteral("First"));
    for (const char* title : {"Second", "Third"}) {
        writeRaw(pathOf(event), readRaw(pathOf(event)).replace("END:VEVENT", "COMMENT:x\r\nEND:VEVENT"));
        event.title = QString::fromLatin1(title);
        EXPECT_FALSE(store->saveEvent(event, EventSpan::ThisEvent));
        EXPECT_EQ(titles(), (std::map<QString, int>{{event.title, 1}}));
        EXPECT_EQ(store->unsentChanges(), 0);
    }
}

TEST_F(CalDAVRefusalTest, ACalendarIsNotGivenUpForOneAnswer)
{
    const auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    save(*store, QStringLiteral("Ours"));
    const QString there = server.calendar("tv"), away = home.filePath(QStringLiteral("away"));
    ASSERT_TRUE(QDir().rename(there, away));
    later(*store);
    save(*store, QStringLiteral("Unsent"));
    ASSERT_TRUE(QDir().rename(away, there));
    later(*store);
    EXPECT_EQ(titles().size(), 2U);

    int told = 0;
    store->setChangeObserver([&] { ++told; });
    ASSERT_TRUE(QDir(there).removeRecursively());
    later(*store);
    EXPECT_EQ(store->calendarsForEntityType(EntityType::Event).size(), 3U);
    later(*store);
    EXPECT_EQ(store->calendarsForEntityType(EntityType::Event).size(), 2U) << "gone for good";
    EXPECT_EQ(told, 1);
}

TEST_F(CalDAVRefusalTest, AWaitingChangeOutlivesAListThatLacksItsEvent)
{
    const auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    Event event = save(*store, QStringLiteral("Ours"));
    session.fault = Fault::Silence;
    event.title = QStringLiteral("Changed");
    EXPECT_FALSE(store->saveEvent(event, EventSpan::ThisEvent));
    session.fault = Fault::None;
    writeRaw(server.calendar("tv") + QStringLiteral("/w.ics"), foreignEvent("w", "20261122T200000Z"));
    const QByteArray name = QFileInfo(pathOf(event)).fileName().toUtf8();
    gateway.change = [&](const URLRequest& request, URLResult& result) {
        if (request.httpMethod == "REPORT" && result.data)
            result.data->replace(name, "somewhere-else.ics");
    };
    later(*store);
    gateway.change = {};
    later(*store);
    EXPECT_EQ(titles()[QStringLiteral("Changed")], 1);
}

TEST_F(CalDAVRefusalTest, AsksAnewWhereATokenIsForgotten)
{
    const auto store = openBehind();
    ASSERT_FALSE(store->refresh());
    for (const int code : {403, 409, 410, 412}) {
        const QString file = server.calendar("tv") + QStringLiteral("/w%1.ics").arg(code);
        writeRaw(file, foreignEvent("w" + QByteArray::number(code), "20261122T200000Z"));
        gateway.answer = [&](const URLRequest& request) -> std::optional<URLResult> {
            const bool hasToken = request.httpBody && request.httpBody->contains("<d:sync-token>http");
            return hasToken ? std::optional(GatewaySession::status(code)) : std::nullopt;
        };
        later(*store);
        EXPECT_TRUE(QFile::exists(home.filePath(QStringLiteral("a/")) + tv(*store).calendarIdentifier +
                                  QLatin1Char('/') + QFileInfo(file).fileName()))
            << code;
    }
}

TEST_F(CalDAVRefusalTest, LoggingInAgainDoublesNothing)
{
    CombinedEventStore combined;
    class NoSecrets final : public SecretStore
    {
        std::optional<QString> secret(const QString&) override { return QStringLiteral("s3cret"); }
        bool setSecret(const QString&, const QString&) override { return true; }
        bool removeSecret(const QString&) override { return true; }
    } secrets;
    CalendarAccounts accounts({.file = home.filePath(QStringLiteral("accounts.json")),
                               .mirrors = home.filePath(QStringLiteral("mirrors")),
                               .secrets = secrets,
                               .session = session,
                               .clock = clock,
                               .random = random,
                               .sleeper = sleeper},
                              combined);
    const QString port = server.address().section(QLatin1Char(':'), -1);
    for (const QString& spelling : QStringList{server.address(), server.address() + QLatin1Char('/'),
                                               QStringLiteral("HTTP://127.0.0.1:") + port}) {
        const CalendarAccount account = accounts.accountFor(spelling, QStringLiteral("ana"));
        ASSERT_TRUE(accounts.add(account));
        EXPECT_FALSE(accounts.storeOf(account)->refresh());
        EXPECT_EQ(accounts.accounts().size(), 1U) << spelling.toStdString();
        EXPECT_EQ(combined.calendarsForEntityType(EntityType::Event).size(), 3U);
    }
}

} // namespace
} // namespace vidora
