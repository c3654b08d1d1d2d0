#include "listings/PageFetcher.h"
#include "platform/CachedURLSession.h"
#include "platform/Log.h"
#include "support/Seams.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <stdexcept>

using namespace vidora;
using ::testing::ElementsAre;

namespace {

class PageFetcherTest : public ::testing::Test
{
protected:
    std::optional<Page> fetch(bool userIsWaitingFor = false)
    {
        return fetcher.netPageForRequest(request, userIsWaitingFor);
    }
    /// What the next request gets.
    void answer(int status, const QByteArray& body, const QByteArray& name = {}, const QByteArray& value = {})
    {
        URLResponse response;
        response.statusCode = status;
        if (!name.isEmpty())
            response.headerFields.set(name, value);
        network.replyNext([=](const URLRequest&) { return URLResult{body, response, std::nullopt}; });
    }
    void fail(const QString& reason = {})
    {
        network.replyNext([=](const URLRequest&) { return test::ScriptedSession::noRoute(reason); });
    }
    std::optional<QString> fetchText()
    {
        const auto page = fetch();
        return page ? page->text() : std::nullopt;
    }
    /// Lets the main thread do what was queued for it.
    static void runMainQueue()
    {
        bool ended = false;
        DispatchQueue::main().async([&ended] { ended = true; });
        while (!ended)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    const QString address = QStringLiteral("http://tv.example/day");
    FixedClock clock{instantFromUnixMilliseconds(1'800'000'000'000)};
    test::ScriptedSession network;
    URLCache cache{clock, [] { return Milliseconds(Seconds(86'400)); }};
    CachedURLSession session{network, cache};
    test::ScriptedSleeper sleeper;
    // Shared, since what is queued for the main thread may outlive a test.
    std::shared_ptr<std::vector<bool>> indicator = std::make_shared<std::vector<bool>>();
    std::shared_ptr<std::vector<Alert>> alerts = std::make_shared<std::vector<Alert>>();
    NetworkActivity activity{[shown = indicator](bool visible) { shown->push_back(visible); }};
    NetworkAlerts networkAlerts{clock, [shown = alerts](Alert alert) { shown->push_back(std::move(alert)); }};
    PageFetcher fetcher{session, cache, sleeper, activity, networkAlerts};
    URLRequest request{*URL::fromText(address)};
};

TEST_F(PageFetcherTest, TriesTwiceAndTakesOnlySuccessWithData)
{
    struct Case
    {
        int firstStatus;
        const char* firstBody;
        std::size_t requests;
    };
    const Case cases[] = {{200, "one", 1}, {299, "one", 1}, {204, "", 2},    {200, "", 2},
                          {199, "one", 2}, {300, "one", 2}, {500, "one", 2}, {0, "one", 2}};
    for (const Case& one : cases) {
        cache.setMemoryCapacity(0);
        answer(one.firstStatus, one.firstBody);
        if (one.requests == 2)
            answer(200, "two");
        const auto text = fetchText();
        EXPECT_EQ(text, one.requests == 1 ? QStringLiteral("one") : QStringLiteral("two")) << one.firstStatus;
        EXPECT_EQ(network.takeRequests().size(), qsizetype(one.requests)) << one.firstStatus;
        EXPECT_EQ(sleeper.takeSlept(), std::vector<Milliseconds>(one.requests - 1, Seconds(1))) << one.firstStatus;
    }
    for (int attempt = 0; attempt < 2; ++attempt)
        answer(404, "page not found");
    EXPECT_FALSE(fetch());
    EXPECT_EQ(network.takeRequests().size(), 2);
    EXPECT_THAT(sleeper.takeSlept(), ElementsAre(Seconds(1)));
    runMainQueue();
    EXPECT_TRUE(alerts->empty());
}

TEST_F(PageFetcherTest, FollowsOneRedirectByItself)
{
    request.allowsFile = true;
    answer(302, "moved", "Location", "https://www.tv.example/den?a=\xC4\x8D");
    network.replyNext([](const URLRequest& second) {
        EXPECT_FALSE(second.allowsFile);
        return URLResult{"page", URLResponse{200, {}}, std::nullopt};
    });
    EXPECT_EQ(fetchText(), QStringLiteral("page"));
    EXPECT_THAT(network.takeRequests(), ElementsAre(address, QStringLiteral("https://www.tv.example/den?a=%C4%8D")));
    EXPECT_EQ(request.url.text(), QStringLiteral("https://www.tv.example/den?a=%C4%8D"));

    request.url = *URL::fromText(address);
    answer(301, "", "Location", "relative/path");
    answer(302, "", "Location", "http://tv.example/again");
    EXPECT_FALSE(fetch());
    EXPECT_EQ(request.url.text(), QStringLiteral("relative/path")); // a second redirect is not followed

    request.url = *URL::fromText(address);
    network.takeRequests();
    answer(200, "", "Location", "");
    answer(200, "page", "Location", "http://tv.example/elsewhere");
    EXPECT_EQ(fetchText(), QStringLiteral("page"));
    EXPECT_THAT(network.takeRequests(), ElementsAre(address, address));
}

TEST_F(PageFetcherTest, ServesFromTheCacheWithoutAskingAgain)
{
    QStringList lines;
    Log::setSink([&lines](const QString& line) { lines.append(line); });
    answer(200, "day");
    EXPECT_EQ(fetchText(), QStringLiteral("day"));
    EXPECT_EQ(fetchText(), QStringLiteral("day"));
    EXPECT_TRUE(fetch(true));
    Log::setSink({});
    EXPECT_EQ(network.takeRequests().size(), 1);
    EXPECT_THAT(lines, ElementsAre(QStringLiteral("page http://tv.example/day: fetched, status 200, 3 bytes"),
                                   QStringLiteral("page http://tv.example/day: from cache, status 200, 3 bytes"),
                                   QStringLiteral("page http://tv.example/day (user waits): from cache, status 200, "
                                                  "3 bytes")));
}

TEST_F(PageFetcherTest, AlertsAtMostOnceInAMinute)
{
    const auto failTwice = [this](const QString& reason = {}) {
        fail(reason);
        fail(reason);
        EXPECT_FALSE(fetch());
        runMainQueue();
        return alerts->size();
    };
    EXPECT_EQ(failTwice(), 1U);
    EXPECT_EQ(alerts->at(0).title, QStringLiteral("Unable to establish connection to remote server"));
    EXPECT_EQ(alerts->at(0).message, QStringLiteral("Check your Internet connection."));
    ASSERT_EQ(alerts->at(0).actions.size(), 1U);
    clock.advance(Seconds(60));
    EXPECT_EQ(failTwice(), 1U);
    clock.advance(Seconds(1));
    EXPECT_EQ(failTwice(QStringLiteral("Host asleep")), 2U);
    EXPECT_EQ(alerts->at(1).title, QStringLiteral("Host asleep"));
    clock.advance(Seconds(100));
    networkAlerts.alertedNow(); // an activation
    clock.advance(Seconds(60));
    EXPECT_EQ(failTwice(), 2U);
}

TEST_F(PageFetcherTest, ShowsActivityFromTheFirstStartToTheLastStop)
{
    activity.stopNetworkActivity(); // unmatched
    activity.startNetworkActivity();
    for (int attempt = 0; attempt < 2; ++attempt)
        network.replyNext([](const URLRequest&) -> URLResult { throw std::runtime_error("broken"); });
    EXPECT_FALSE(fetch()); // the activity ends all the same
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    while (indicator->size() < 3) // the counter has a queue of its own
        runMainQueue();
    EXPECT_EQ(network.takeRequests().size(), 2);
    EXPECT_THAT(*indicator, ElementsAre(true, false, true));
}

TEST(PageFromData, ReadsTheContentTypeToTheLetter)
{
    struct Case
    {
        const char* contentType; ///< null for none
        const char* bytes;
        const char* expected; ///< null for no page
    };
    const Case cases[] = {
        {nullptr, "\xC4\x8D", "č"},
        {"text/html", "\xC4\x8D", "č"},
        {"text/html; charset=windows-1250", "\xE8", "č"},
        {"text/html; charset=", "\xC4\x8D", "č"},
        {"text/html; charset=x", "\xC4\x8D", "č"}, // one character is no name
        {"text/html; Charset=windows-1250", "\xC4\x8D", "č"},
        {"text/html; charset=utf-8; x=1", "a", nullptr},
        {"text/html; charset=\"utf-8\"", "a", nullptr},
        {"text/html;charset=iso-8859-2;charset=utf-8", "a", nullptr},
        {"application/x-xz; charset=utf-8", "a", "a"}, // another value as a whole
    };
    for (const Case& one : cases) {
        URLResponse response;
        if (one.contentType)
            response.headerFields.set("Content-Type", one.contentType);
        const auto page = PageFetcher::pageFromData(one.bytes, response);
        EXPECT_EQ(page.has_value(), one.expected != nullptr) << one.contentType;
        EXPECT_EQ(page ? page->text()->toUtf8() : QByteArray(), QByteArray(one.expected)) << one.contentType;
    }
    for (const char* type : {"application/x-xz", "application/x-gzip"}) {
        URLResponse response;
        response.headerFields.set("Content-Type", type);
        const auto page = PageFetcher::pageFromData("not packed at all", response);
        ASSERT_TRUE(page) << type;
        EXPECT_FALSE(page->text()) << type;
    }
}

TEST(HTTPUserAgent, IsChosenOnceARun)
{
    test::ScriptedRandom random({12});
    HTTPUserAgent agent(random);
    EXPECT_EQ(agent.value(), "Opera/9.80 (X11; FreeBSD 11.1-RELEASE-p1 amd64) Presto/2.12.388 Version/12.16");
    EXPECT_EQ(agent.value(), agent.value());
    EXPECT_THAT(random.bounds(), ElementsAre(14U));
}

} // namespace
