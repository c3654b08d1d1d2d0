#include "platform/CachedURLSession.h"
#include "platform/Instant.h"
#include "support/Seams.h"

#include <gtest/gtest.h>

namespace vidora {
namespace {

TEST(URLTest, IsKeptAsGivenButForWhatMayNotStandInIt)
{
    const std::pair<const char*, const char*> cases[] = {
        {"http://a.example/x?y=1#z", "http://a.example/x?y=1#z"},
        {"a b", "a%20b"},
        {"100%", "100%25"},
        {"%2", "%252"},
        {"%2g%zf", "%252g%25zf"},
        {"%2F%af", "%2F%af"},
        {"\"<>\\^`{|}", "%22%3C%3E%5C%5E%60%7B%7C%7D"},
        {"\xC4\x8D\xF0\x9F\x90\x80", "%C4%8D%F0%9F%90%80"},
        {"az AZ09-._~:/?#[]@!$&'()*+,;=", "az%20AZ09-._~:/?#[]@!$&'()*+,;="},
    };
    for (const auto& [given, kept] : cases)
        EXPECT_EQ(URL::fromText(QString::fromUtf8(given))->text(), QString::fromUtf8(kept)) << given;
    EXPECT_FALSE(URL::fromText(u""));
    const char16_t lone[] = {u'a', 0xD83D, u'b', 0}; // half a character
    EXPECT_EQ(URL::fromText(QStringView(lone))->text(), QStringLiteral("a%3Fb"));
}

// Who gets a password, and what is read from a disk, hangs on these.
TEST(URLTest, IsTakenApart)
{
    struct Case
    {
        const char* text;
        const char* scheme;
        const char* origin;
        const char* host;
    };
    const Case cases[] = {
        {"http://a.example", "http", "http://a.example", "a.example"},
        {"HTTPS://A.example:8080/p", "https", "HTTPS://A.example:8080", "A.example"},
        {"http://a.example?q@b.example", "http", "http://a.example", "a.example"},
        {"http://a.example#@b.example/", "http", "http://a.example", "a.example"},
        {"http://user@b.example@a.example:1/", "http", "http://user@b.example@a.example:1", "a.example"},
        {"http://[::1]:80/", "http", "http://[::1]:80", "::1"},
        {"vidora://0123/4", "vidora", "vidora://0123", "0123"},
        {"web+x-1.0:rest", "web+x-1.0", "", ""},
        {"mailto:a@b.example", "mailto", "", ""},
        {"http:/one", "http", "", ""},
        {"relative/path:1", "", "", ""},
        {"1http://a.example", "", "", ""},
        {"//a.example/p", "", "", ""},
        {":", "", "", ""},
    };
    for (const Case& one : cases) {
        const URL url = *URL::fromText(QString::fromLatin1(one.text));
        EXPECT_EQ(url.scheme(), QLatin1String(one.scheme)) << one.text;
        EXPECT_EQ(url.origin(), QLatin1String(one.origin)) << one.text;
        EXPECT_EQ(url.host(), QLatin1String(one.host)) << one.text;
    }
}

TEST(InstantTest, IsWrittenWithoutAnEmptyFraction)
{
    for (const char* text : {"2026-11-22T19:00:00Z", "2026-11-22T19:00:10Z", "2026-11-22T19:00:00.5Z",
                             "2026-11-22T19:00:00.05Z", "2026-11-22T19:00:00.005Z", "1969-12-31T23:59:59.999Z"})
        EXPECT_EQ(isoText(*instantFromIsoText(QString::fromLatin1(text))), QLatin1String(text));
    for (const char* text : {"", "Z", "2026-11-22T19:00:00", "2026-13-22T19:00:00Z", "2026-11-22T19:00:00+01:00"})
        EXPECT_FALSE(instantFromIsoText(QString::fromLatin1(text))) << text;
}

TEST(HeaderFieldsTest, AreFoundInAnyCase)
{
    HeaderFields fields;
    fields.set("Content-Type", "text/html");
    fields.set("content-type", "text/xml");
    fields.add("Link", "<a>");
    fields.add("LINK", "<b>");
    EXPECT_EQ(fields.value("CONTENT-TYPE"), QByteArray("text/xml"));
    EXPECT_EQ(fields.value("link"), QByteArray("<a>, <b>"));
    EXPECT_FALSE(fields.value("Location"));
}

TEST(CachedURLSessionTest, KeepsNothingOfRequestsThatChangeOrProveSomething)
{
    FixedClock clock(instantFromUnixMilliseconds(0));
    URLCache cache(clock, [] { return Milliseconds(Seconds(3600)); });
    test::ScriptedSession network;
    CachedURLSession session(network, cache);
    const URLRequest plain(*URL::fromText(u"http://a.example/"));
    URLRequest put = plain, body = plain, credentials = plain;
    put.httpMethod = "PUT";
    body.httpBody = "a";
    credentials.credentials = URLCredentials{QStringLiteral("ana"), QStringLiteral("s3cret")};
    network.answer(plain.url.text(), {200, "answer"});
    for (const URLRequest& request : {put, body, credentials, plain}) {
        EXPECT_FALSE(session.perform(request).response->fromCache);
        EXPECT_EQ(network.takeRequests().size(), 1);
    }
    EXPECT_TRUE(session.perform(plain).response->fromCache);
    EXPECT_FALSE(session.perform(credentials).response->fromCache);

    network.replyNext([](const URLRequest&) {
        return URLResult{"half", URLResponse{200, {}}, URLError{QStringLiteral("cut off"), {}, {}}};
    });
    const URLRequest other(*URL::fromText(u"http://a.example/other"));
    EXPECT_TRUE(session.perform(other).error);
    EXPECT_TRUE(session.perform(other).error) << "no half of an answer is kept";
}

} // namespace
} // namespace vidora
