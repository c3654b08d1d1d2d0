#include "listings/PageFetcher.h"
#include "platform/CachedURLSession.h"
#include "platform/Log.h"

#include <QCoreApplication>

#include <deque>
#include <gmock/gmock.h>
#include <stdexcept>

using namespace vidora;
using ::testing::ElementsAre;

namespace {

/// Answers each request with the next of the given results, and keeps what was asked for.
class ScriptedSession final : public URLSession
{
public:
    void answer(int status, QByteArray body, const QByteArray& name = {}, const QByteArray& value = {})
    {
        URLResponse response;
        response.statusCode = status;
        if (!name.isEmpty())
            response.headerFields.set(name, value);
        results.push_back({std::move(body), std::move(response), std::nullopt});
    }
    void fail(const QString& reason = {})
    {
        results.push_back({std::nullopt, std::nullopt, URLError{QStringLiteral("no route"), reason, {}}});
    }
    URLResult perform(const URLRequest& request) override
    {
        asked.append(request.url.text());
        allowedFile = request.allowsFile;
        if (results.empty())
            throw std::runtime_error("nothing left to answer");
        URLResult result = std::move(results.front());
        results.pop_front();
        return result;
    }
    std::deque<URLResult> results;
    QStringList asked;
    bool allowedFile = false;
};

class CountingSleeper final : public Sleeper
{
public:
    void sleep(Milliseconds duration) override { slept += duration; }
    Milliseconds slept{0};
};

class CountingRandom final : public Random
{
public:
    std::uint32_t uniform(std::uint32_t bound) override
    {
        EXPECT_EQ(bound, 14U);
        return next++;
    }
    std::uint32_t next = 12;
};

class PageFetcherTest : public ::testing::Test
{
protected:
    std::optional<Page> fetch(bool userIsWaitingFor = false)
    {
        return fetcher.netPageForRequest(request, userIsWaitingFor);
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
    ScriptedSession network;
    URLCache cache{clock, [] { return Milliseconds(Seconds(86'400)); }};
    CachedURLSession session{network, cache};
    CountingSleeper sleeper;
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
        int requests;
    };
    const Case cases[] = {{200, "one", 1}, {299, "one", 1}, {204, "", 2},    {200, "", 2},
                          {199, "one", 2}, {300, "one", 2}, {500, "one", 2}, {0, "one", 2}};
    for (const Case& one : cases) {
        network.asked.clear();
        sleeper.slept = {};
        cache.setMemoryCapacity(0);
        network.results.clear();
        network.answer(one.firstStatus, one.firstBody);
        network.answer(200, "two");
        const auto text = fetchText();
        EXPECT_EQ(text, one.requests == 1 ? QStringLiteral("one") : QStringLiteral("two")) << one.firstStatus;
        EXPECT_EQ(network.asked.size(), one.requests) << one.firstStatus;
        EXPECT_EQ(sleeper.slept, Milliseconds(one.requests == 1 ? 0 : 1000)) << one.firstStatus;
    }
    for (int attempt = 0; attempt < 3; ++attempt)
        network.answer(404, "page not found");
    network.asked.clear();
    sleeper.slept = {};
    network.results.pop_front();
    EXPECT_FALSE(fetch());
    EXPECT_EQ(network.asked.size(), 2);
    EXPECT_EQ(sleeper.slept, Milliseconds(1000));
    runMainQueue();
    EXPECT_TRUE(alerts->empty());
}

TEST_F(PageFetcherTest, FollowsOneRedirectByItself)
{
    request.allowsFile = true;
    network.answer(302, "moved", "Location", "https://www.tv.example/den?a=\xC4\x8D");
    network.answer(200, "page");
    EXPECT_EQ(fetchText(), QStringLiteral("page"));
    EXPECT_THAT(network.asked, ElementsAre(address, QStringLiteral("https://www.tv.example/den?a=%C4%8D")));
    EXPECT_EQ(request.url.text(), QStringLiteral("https://www.tv.example/den?a=%C4%8D"));
    EXPECT_FALSE(network.allowedFile);

    request.url = *URL::fromText(address);
    network.answer(301, "", "Location", "relative/path");
    network.answer(302, "", "Location", "http://tv.example/again");
    EXPECT_FALSE(fetch());
    EXPECT_EQ(request.url.text(), QStringLiteral("relative/path")); // a second redirect is not followed

    request.url = *URL::fromText(address);
    network.asked.clear();
    network.answer(200, "", "Location", "");
    network.answer(200, "page", "Location", "http://tv.example/elsewhere");
    EXPECT_EQ(fetchText(), QStringLiteral("page"));
    EXPECT_THAT(network.asked, ElementsAre(address, address));
}

TEST_F(PageFetcherTest, ServesFromTheCacheWithoutAskingAgain)
{
    QStringList lines;
    Log::setSink([&lines](const QString& line) { lines.append(line); });
    network.answer(200, "day");
    EXPECT_EQ(fetchText(), QStringLiteral("day"));
    EXPECT_EQ(fetchText(), QStringLiteral("day"));
    EXPECT_TRUE(fetch(true));
    Log::setSink({});
    EXPECT_EQ(network.asked.size(), 1);
    EXPECT_THAT(lines, ElementsAre(QStringLiteral("page http://tv.example/day: fetched, status 200, 3 bytes"),
                                   QStringLiteral("page http://tv.example/day: from cache, status 200, 3 bytes"),
                                   QStringLiteral("page http://tv.example/day (user waits): from cache, status 200, "
                                                  "3 bytes")));
}

TEST_F(PageFetcherTest, AlertsAtMostOnceInAMinute)
{
    const auto failTwice = [this](const QString& reason = {}) {
        network.fail(reason);
        network.fail(reason);
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
    EXPECT_FALSE(fetch()); // the session throws: the activity ends all the same
    activity.stopNetworkActivity();
    activity.startNetworkActivity();
    while (indicator->size() < 3) // the counter has a queue of its own
        runMainQueue();
    EXPECT_EQ(network.asked.size(), 2);
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
    CountingRandom random;
    HTTPUserAgent agent(random);
    EXPECT_EQ(agent.value(), "Opera/9.80 (X11; FreeBSD 11.1-RELEASE-p1 amd64) Presto/2.12.388 Version/12.16");
    EXPECT_EQ(agent.value(), agent.value());
    EXPECT_EQ(random.next, 13U);
}

} // namespace
