#include "platform/AtomicFile.h"
#include "platform/CachedURLSession.h"
#include "platform/NetworkURLSession.h"

#include <QCryptographicHash>
#include <QTemporaryDir>

#include <condition_variable>
#include <gtest/gtest.h>
#include <httplib.h>
#include <thread>

using namespace vidora;

namespace {

/// A provider on the loopback, up as long as it lives.
class Provider : public httplib::Server
{
public:
    Provider()
        : port(bind_to_any_port("127.0.0.1"))
        , m_thread([this] { listen_after_bind(); })
    {
    }
    ~Provider() override { close(); }
    void close()
    {
        stop();
        if (m_thread.joinable())
            m_thread.join();
    }
    const int port;

private:
    std::thread m_thread;
};

class NetworkURLSessionTest : public ::testing::Test
{
protected:
    NetworkURLSessionTest()
    {
        for (const char* proxy : {"http_proxy", "all_proxy", "ALL_PROXY"})
            qunsetenv(proxy);
        server.set_keep_alive_max_count(100);
    }
    ~NetworkURLSessionTest() override { release(); }

    void hold()
    {
        std::unique_lock lock(mutex);
        held = true;
        changed.notify_all();
        changed.wait(lock, [this] { return released; });
    }
    void waitUntilHeld()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return held; });
    }
    void release()
    {
        const std::lock_guard lock(mutex);
        released = true;
        changed.notify_all();
    }

    URLRequest request(const char* path) const
    {
        return URLRequest(
            *URL::fromText(QStringLiteral("http://127.0.0.1:%1%2").arg(server.port).arg(QLatin1String(path))));
    }

    std::mutex mutex;
    std::condition_variable changed;
    bool held = false, released = false;
    Provider server;
    NetworkURLSession session; // goes first: the provider waits for its open connections
};

TEST_F(NetworkURLSessionTest, DeliversBodyStatusAndFieldsWhateverTheStatus)
{
    server.Get("/page", [](const httplib::Request& asked, httplib::Response& answer) {
        answer.set_header("X-Echo",
                          asked.get_header_value("User-Agent") + "|" + asked.get_header_value("Accept-Encoding"));
        answer.set_header("X-Twice", "a");
        answer.set_header("X-Twice", "b");
        answer.set_content("tel\xC3\xA9", "text/html; charset=windows-1250");
    });
    server.Get("/gone", [](const httplib::Request&, httplib::Response& answer) {
        answer.status = 302;
        answer.set_header("Location", "/page");
        answer.set_content("moved", "text/plain");
    });
    URLRequest page = request("/page");
    page.headerFields.set("User-Agent", "Browser/1");
    page.headerFields.set("Accept-Encoding", "gzip,deflate");
    const URLResult result = session.perform(page);
    ASSERT_FALSE(result.error) << result.error->description.toStdString();
    EXPECT_EQ(result.data, QByteArray("tel\xC3\xA9"));
    EXPECT_EQ(result.response->statusCode, 200);
    EXPECT_EQ(result.response->headerFields.value("content-TYPE"), "text/html; charset=windows-1250");
    EXPECT_EQ(result.response->headerFields.value("X-Echo"), "Browser/1|gzip,deflate");
    EXPECT_EQ(result.response->headerFields.value("X-Twice"), "a, b");

    const URLResult moved = session.perform(request("/gone"));
    EXPECT_EQ(moved.response->statusCode, 302);
    EXPECT_EQ(moved.response->headerFields.value("Location"), "/page");
    const URLResult missing = session.perform(request("/missing"));
    EXPECT_EQ(missing.response->statusCode, 404);
    EXPECT_EQ(missing.data, QByteArray(""));
    EXPECT_FALSE(missing.error);
}

TEST_F(NetworkURLSessionTest, SendsBodiesAndProvesWhoItIsToWhomItIsTold)
{
    const auto md5 = [](const QByteArray& text) -> QByteArray {
        return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
    };
    server.Put("/basic", [](const httplib::Request& asked, httplib::Response& answer) {
        answer.set_content(asked.get_header_value("Authorization") + "|" + asked.body, "text/plain");
    });
    server.Put("/digest", [&](const httplib::Request& asked, httplib::Response& answer) {
        const QByteArray given = QByteArray::fromStdString(asked.get_header_value("Authorization"));
        const QByteArray expected = md5(md5("ana:home:s3:cret") + ":n0nce:" + md5("PUT:/digest"));
        answer.status = given.contains(expected) ? 201 : 401;
        if (answer.status == 401)
            answer.set_header("WWW-Authenticate", "Digest realm=\"home\", nonce=\"n0nce\", algorithm=MD5");
        answer.set_content(asked.body, "text/plain");
    });
    server.Get("/plain", [](const httplib::Request& asked, httplib::Response& answer) {
        answer.set_content(asked.get_header_value("Authorization") + asked.body, "text/plain");
    });
    URLRequest put = request("/basic");
    put.httpMethod = "PUT";
    put.httpBody = QByteArray("a\0b", 3);
    put.credentials = URLCredentials{QStringLiteral("ana"), QStringLiteral("s3:cret"), URLAuthentication::Basic};
    EXPECT_EQ(session.perform(put).data.value_or("none"),
              "Basic " + QByteArray("ana:s3:cret").toBase64() + "|" + *put.httpBody);
    URLRequest digest = request("/digest");
    digest.httpMethod = "PUT";
    digest.headerFields.set("Content-Type", "text/calendar");
    digest.httpBody = QByteArray(50'000, 'x');
    digest.credentials = put.credentials;
    digest.credentials->authentication = URLAuthentication::Digest;
    const URLResult answered = session.perform(digest);
    ASSERT_TRUE(answered.response);
    EXPECT_EQ(answered.response->statusCode, 201);
    EXPECT_EQ(answered.data, digest.httpBody);
    EXPECT_EQ(session.perform(request("/plain")).data, QByteArray(""));
}

TEST_F(NetworkURLSessionTest, UndoesATransferEncodingButNotACompressedFile)
{
    const std::string text(5000, 'x');
    const std::string file("\x1F\x8B\x08 not touched");
    server.Get("/text", [&](const httplib::Request&, httplib::Response& answer) {
        answer.set_content(text, "text/html"); // the server packs it, as asked to
    });
    server.Get("/file", [&](const httplib::Request&, httplib::Response& answer) {
        answer.set_content(file, "application/x-gzip");
    });
    server.Get("/broken", [&](const httplib::Request&, httplib::Response& answer) {
        answer.set_header("Content-Encoding", "gzip");
        answer.set_content("no gzip at all", "application/octet-stream");
    });
    const URLResult packed = session.perform(request("/text"));
    EXPECT_EQ(packed.response->headerFields.value("Content-Encoding"), "gzip");
    EXPECT_EQ(packed.data, QByteArray::fromStdString(text));
    EXPECT_EQ(session.perform(request("/file")).data, QByteArray::fromStdString(file));
    const URLResult broken = session.perform(request("/broken"));
    EXPECT_FALSE(broken.data);
    EXPECT_TRUE(broken.error);
}

TEST_F(NetworkURLSessionTest, ReportsFaultsWithoutDataInTheGivenTime)
{
    server.Get("/silent", [this](const httplib::Request&, httplib::Response&) { hold(); });
    server.Get("/endless", [](const httplib::Request&, httplib::Response& answer) {
        answer.set_chunked_content_provider(
            "text/plain", [](std::size_t, httplib::DataSink& sink) { return sink.write("more ", 5); });
    });
    server.Get("/cut", [](const httplib::Request&, httplib::Response& answer) {
        answer.set_content_provider(1000, "text/plain", [](std::size_t offset, std::size_t, httplib::DataSink& sink) {
            return offset == 0 && sink.write("only this", 9);
        });
    });
    URLRequest silent = request("/silent");
    silent.timeoutIntervalForRequest = Milliseconds(30);
    EXPECT_EQ(session.perform(silent).error->description, QStringLiteral("timed out"));
    URLRequest endless = request("/endless");
    endless.timeoutIntervalForResource = Milliseconds(30);
    EXPECT_TRUE(session.perform(endless).error);
    NetworkURLSession small(1000);
    EXPECT_EQ(small.perform(request("/endless")).error->description, QStringLiteral("body too large"));
    URLRequest picture = request("/endless");
    picture.maximumBodySize = 1000;
    EXPECT_EQ(session.perform(picture).error->description, QStringLiteral("body too large"));
    picture = request("/cut");
    picture.maximumBodySize = 999;
    EXPECT_EQ(session.perform(picture).error->description, QStringLiteral("Maximum file size exceeded"))
        << "refused by what is announced";
    URLRequest unwanted = request("/silent");
    unwanted.cancelled = std::make_shared<std::atomic<bool>>(true);
    EXPECT_EQ(session.perform(unwanted).error->description, QStringLiteral("cancelled"));
    const URLResult cut = session.perform(request("/cut"));
    EXPECT_FALSE(cut.data);
    EXPECT_TRUE(cut.error);
    EXPECT_EQ(cut.response->statusCode, 200);
    release();
    server.close();
    EXPECT_TRUE(session.perform(request("/page")).error); // nobody there
}

TEST_F(NetworkURLSessionTest, EndsRunningRequestsWhenItIsCancelled)
{
    server.Get("/silent", [this](const httplib::Request&, httplib::Response&) { hold(); });
    std::optional<URLError> error;
    std::thread fetching([&] { error = session.perform(request("/silent")).error; });
    waitUntilHeld();
    session.invalidateAndCancel();
    fetching.join();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description, QStringLiteral("cancelled"));
}

TEST_F(NetworkURLSessionTest, KeepsCookiesAndConnectionsOfAllThreads)
{
    std::set<int> remotePorts;
    server.Get("/", [&](const httplib::Request& asked, httplib::Response& answer) {
        const std::lock_guard lock(mutex);
        remotePorts.insert(asked.remote_port);
        answer.set_header("Set-Cookie", "region=north; Path=/");
        answer.set_content(asked.get_header_value("Cookie"), "text/plain");
    });
    EXPECT_EQ(session.perform(request("/")).data, QByteArray(""));
    EXPECT_EQ(session.perform(request("/")).data, QByteArray("region=north"));
    EXPECT_EQ(remotePorts.size(), 1U);
    std::vector<std::thread> threads;
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([this] {
            for (int round = 0; round < 10; ++round)
                EXPECT_EQ(session.perform(request("/")).data, QByteArray("region=north"));
        });
    }
    for (std::thread& one : threads)
        one.join();
    EXPECT_LE(remotePorts.size(), 4U);
}

TEST_F(NetworkURLSessionTest, FetchesFromTheWebAloneAndFilesOnlyWhereAllowed)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("my guide.xz"));
    ASSERT_FALSE(AtomicFile::write(path, QByteArrayView("\3757zXZ\0rest", 10), AtomicFile::Access::OwnerOnly).failed());
    URLRequest file(*URL::fromText(QString(QStringLiteral("file://") + path)));
    EXPECT_TRUE(session.perform(file).error);
    file.allowsFile = true;
    const URLResult result = session.perform(file);
    ASSERT_TRUE(result.data);
    EXPECT_EQ(result.data->size(), 10);
    EXPECT_EQ(result.response->headerFields.value("Content-Type"), "application/x-xz");
    for (const QString& address :
         {QString(QStringLiteral("file://elsewhere") + path), QStringLiteral("file:///dev/zero"),
          QStringLiteral("relative/path"), QStringLiteral("ftp://127.0.0.1/"), QStringLiteral("http://"),
          QStringLiteral("data:text/plain,a")}) {
        URLRequest other(*URL::fromText(address));
        other.allowsFile = true;
        EXPECT_TRUE(session.perform(other).error) << address.toStdString();
    }
}

TEST_F(NetworkURLSessionTest, IsAskedOnlyForWhatTheCacheDoesNotHold)
{
    int asked = 0;
    const auto answerWith = [&asked](const char* control, std::string body) {
        return [&asked, control, body](const httplib::Request&, httplib::Response& answer) {
            ++asked;
            answer.set_header("Cache-Control", control);
            answer.set_content(body, "text/plain");
        };
    };
    server.Get("/kept", answerWith("no-cache, max-age=0", "kept"));
    server.Get("/secret", answerWith("private, No-Store", "secret"));
    server.Get("/empty", answerWith("public", ""));
    FixedClock clock(instantFromUnixMilliseconds(1'000'000'000'000));
    Milliseconds interval = Seconds(3600);
    URLCache cache(clock, [&interval] { return interval; });
    CachedURLSession cached(session, cache);
    const auto askedFor = [&](const char* path) {
        const int before = asked;
        cached.perform(request(path));
        return asked - before;
    };
    EXPECT_EQ(askedFor("/kept"), 1);
    EXPECT_EQ(askedFor("/kept"), 0);
    EXPECT_TRUE(cached.perform(request("/kept")).response->fromCache);
    EXPECT_EQ(cached.perform(request("/kept")).data, QByteArray("kept"));
    for (const char* path : {"/secret", "/empty"}) {
        EXPECT_EQ(askedFor(path) + askedFor(path), 2) << path;
    }
    clock.advance(Seconds(3600));
    EXPECT_EQ(askedFor("/kept"), 0);
    clock.advance(Milliseconds(1));
    EXPECT_EQ(askedFor("/kept"), 1);
    clock.advance(Seconds(-10)); // set back: nobody knows how old it is
    EXPECT_EQ(askedFor("/kept"), 1);

    cache.removeCachedResponseForRequest(request("/kept"));
    URLRequest cacheOnly = request("/kept");
    cacheOnly.cachePolicy = CachePolicy::ReturnCacheDataDontLoad;
    EXPECT_FALSE(cached.perform(cacheOnly).data);
    EXPECT_EQ(askedFor("/kept"), 1);
    EXPECT_EQ(cached.perform(cacheOnly).data, QByteArray("kept"));

    const qint64 capacity = cache.memoryCapacity();
    cache.setMemoryCapacity(0);
    EXPECT_EQ(cache.currentMemoryUsage(), 0);
    cache.setMemoryCapacity(capacity);
    EXPECT_EQ(askedFor("/kept"), 1);
    EXPECT_EQ(cache.currentMemoryUsage(), 4);
}

TEST_F(NetworkURLSessionTest, WaitsForANetworkUnlessItAsksThisMachine)
{
    server.Get("/page",
               [](const httplib::Request&, httplib::Response& answer) { answer.set_content("x", "text/plain"); });
    Connectivity network;
    NetworkURLSession waiting(1024, {}, &network);
    URLRequest elsewhere(*URL::fromText(QStringLiteral("http://0.0.0.0:%1/page").arg(server.port)));
    network.setConnected(false);
    EXPECT_EQ(waiting.perform(request("/page")).data, "x");
    for (const char* local : {"localhost", "a.localhost", "127.1.2.3", "[::1]"}) {
        URLRequest near(*URL::fromText(QStringLiteral("http://%1:%2/page").arg(QLatin1String(local)).arg(server.port)));
        near.timeoutIntervalForResource = std::chrono::hours(24); // answered or refused, not waited for
        waiting.perform(near);
    }
    elsewhere.timeoutIntervalForResource = elsewhere.timeoutIntervalForRequest + Milliseconds(60);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(waiting.perform(elsewhere).data, "x") << "monitors err";
    EXPECT_GE(std::chrono::steady_clock::now() - begin, Milliseconds(60));

    elsewhere.timeoutIntervalForResource = std::chrono::hours(1);
    URLResult result;
    std::thread asking([&] { result = waiting.perform(elsewhere); });
    network.setConnected(true);
    asking.join();
    EXPECT_EQ(result.data, "x");

    network.setConnected(false);
    const auto cancelled = std::make_shared<std::atomic<bool>>(false);
    elsewhere.cancelled = cancelled;
    std::thread given([&] { result = waiting.perform(elsewhere); });
    *cancelled = true;
    given.join();
    EXPECT_EQ(result.error.value_or(URLError{}).kind, URLError::Kind::Cancelled);
    elsewhere.cancelled = nullptr;
    std::thread ended([&] { result = waiting.perform(elsewhere); });
    waiting.invalidateAndCancel();
    ended.join();
    EXPECT_EQ(result.error.value_or(URLError{}).kind, URLError::Kind::Cancelled);
}

TEST(URLCache, LetsTheOldestGoWhenItIsFull)
{
    FixedClock clock(instantFromUnixMilliseconds(0));
    URLCache cache(clock, [] { return Milliseconds(Seconds(3600)); });
    cache.setMemoryCapacity(25);
    const auto named = [](int number) {
        return URLRequest(*URL::fromText(QStringLiteral("http://a.example/%1").arg(number)));
    };
    for (int number = 0; number < 4; ++number) {
        clock.advance(Seconds(1));
        cache.storeCachedResponse({QByteArray(10, 'x'), URLResponse{200, {}, false}}, named(number));
    }
    EXPECT_FALSE(cache.cachedResponseForRequest(named(1)));
    for (const int status : {199, 300})
        cache.storeCachedResponse({QByteArray(10, 'x'), URLResponse{status, {}, false}}, named(4));
    cache.storeCachedResponse({QByteArray(10, 'y'), URLResponse{200, {}, false}}, named(3)); // in place of the former
    cache.setMemoryCapacity(20);
    EXPECT_TRUE(cache.cachedResponseForRequest(named(2)));
    EXPECT_EQ(cache.cachedResponseForRequest(named(3))->data, QByteArray(10, 'y'));
    clock.advance(Seconds(3601));
    cache.storeCachedResponse({QByteArray(5, 'x'), URLResponse{299, {}, false}}, named(9));
    EXPECT_EQ(cache.currentMemoryUsage(), 5); // the addresses of yesterday do not pile up
}

TEST(URLCache, LooksAtFewEntriesHoweverManyItHolds)
{
    FixedClock clock(instantFromUnixMilliseconds(0));
    int looks = 0;
    URLCache cache(clock, [&] {
        ++looks;
        return Milliseconds(Seconds(3600));
    });
    constexpr int pages = 1000;
    for (int number = 0; number < pages; ++number)
        cache.storeCachedResponse({"x", URLResponse{200, {}, false}},
                                  URLRequest(*URL::fromText(QStringLiteral("http://a.example/%1").arg(number))));
    EXPECT_EQ(cache.currentMemoryUsage(), pages);
    EXPECT_LE(looks, 2 * pages);
}

} // namespace
