#include "CalDAVServer.h"
#include "calendar/CalDAVClient.h"
#include "platform/NetworkURLSession.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>
#include <httplib.h>
#include <thread>

namespace vidora {
namespace {

using namespace test;
using Outcome = CalDAVClient::Outcome;
using Trouble = CalDAVClient::Trouble;

const QByteArray document = foreignEvent("w", "20261122T200000Z");

/// Takes one event, from whoever `admits` lets in.
template<typename Server>
class EventServer
{
public:
    template<typename... Arguments>
    explicit EventServer(Arguments&&... arguments)
        : server(std::forward<Arguments>(arguments)...)
    {
        server.Put(".*", [this](const httplib::Request& request, httplib::Response& response) {
            seen += request.get_header_value("Authorization") + request.body;
            response.status = 401;
            if (!admits(request, response))
                return;
            response.status = 201;
            response.set_header("ETag", "\"1\"");
            stored = QByteArray::fromStdString(request.body);
        });
        port = server.bind_to_any_port("127.0.0.1");
        thread = std::thread([this] { server.listen_after_bind(); });
    }
    ~EventServer()
    {
        server.stop();
        thread.join();
    }

    std::function<bool(const httplib::Request&, httplib::Response&)> admits = [](const auto&, auto&) { return true; };
    QByteArray stored;
    std::string seen;
    int port = 0;
    Server server;
    std::thread thread;
};

class CalDAVLoginTest : public ::testing::Test
{
protected:
    CalDAVLoginTest() { qputenv("no_proxy", "127.0.0.1"); }
    Outcome put(const QUrl& address, const QString& password, const QString& authorities = {})
    {
        NetworkURLSession session(1024 * 1024, authorities);
        CalDAVClient client(session, sleeper, {DAVConnection::originOf(address), QStringLiteral("ana"), password});
        QString tag;
        const DAVResult result = client.put(address, document, tag);
        EXPECT_FALSE(result.answer.contains(password));
        trouble = result.trouble;
        return result.outcome;
    }

    ScriptedSleeper sleeper;
    Trouble trouble = Trouble::None;
};

/// RFC 7616, 3.4, with qop=auth; the older RFC 2617 says the same of MD5.
bool isRightDigest(const std::string& header, QCryptographicHash::Algorithm algorithm)
{
    std::map<QByteArray, QByteArray> fields;
    for (const QByteArray& field : QByteArray::fromStdString(header).mid(7).split(',')) {
        const qsizetype equals = field.indexOf('=');
        fields[field.left(equals).trimmed()] = field.mid(equals + 1).trimmed().replace('"', "");
    }
    const auto hash = [&](const QByteArray& text) { return QCryptographicHash::hash(text, algorithm).toHex(); };
    const QByteArray secret = hash(fields["username"] + ":calendars:s3cret");
    const QByteArray request = hash("PUT:" + fields["uri"]);
    return fields["username"] == "ana" && fields["nonce"] == "n0nce" && !fields["cnonce"].isEmpty() &&
           fields["response"] ==
               hash(secret + ":n0nce:" + fields["nc"] + ":" + fields["cnonce"] + ":" + fields["qop"] + ":" + request);
}

TEST_F(CalDAVLoginTest, ProvesItselfByDigestOverAnOpenLine)
{
    for (const auto& [name, algorithm] :
         {std::pair("MD5", QCryptographicHash::Md5), std::pair("SHA-256", QCryptographicHash::Sha256)}) {
        EventServer<httplib::Server> server;
        server.admits = [&, name = name, algorithm = algorithm](const auto& request, auto& response) {
            response.set_header("WWW-Authenticate",
                                std::string("Digest realm=\"calendars\", qop=\"auth\", nonce=\"n0nce\", algorithm=") +
                                    name);
            return isRightDigest(request.get_header_value("Authorization"), algorithm);
        };
        const QUrl address(QStringLiteral("http://127.0.0.1:%1/a/w.ics").arg(server.port));
        EXPECT_EQ(put(address, QStringLiteral("guess")), Outcome::Refused) << name;
        EXPECT_EQ(trouble, Trouble::Password);
        EXPECT_EQ(put(address, QStringLiteral("s3cret")), Outcome::Done) << name;
        EXPECT_EQ(server.stored, document) << name;
        EXPECT_EQ(server.seen.find("s3cret"), std::string::npos);
    }
}

TEST_F(CalDAVLoginTest, TrustsOnlyCertificatesOfAnAuthorityItKnows)
{
    QTemporaryDir folder;
    const auto path = [&](const char* name) { return folder.filePath(QString::fromLatin1(name)); };
    for (const QString& name : {path("own"), path("other")}) {
        ChildProcess openssl({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:prime256v1",
                              "-nodes", "-days", "2", "-subj", "/CN=here", "-addext", "subjectAltName=IP:127.0.0.1",
                              "-keyout", name.toUtf8() + ".key", "-out", name.toUtf8() + ".crt"},
                             path("log"));
        ASSERT_EQ(openssl.wait(), 0) << readRaw(path("log")).toStdString();
    }
    EventServer<httplib::SSLServer> server(path("own.crt").toUtf8().constData(), path("own.key").toUtf8().constData());
    server.admits = [](const auto& request, auto& response) {
        response.set_header("WWW-Authenticate", "Basic realm=\"calendars\"");
        return request.get_header_value("Authorization") == "Basic YW5hOnMzY3JldA==";
    };
    const QUrl address(QStringLiteral("https://127.0.0.1:%1/a/w.ics").arg(server.port));
    for (const QString& authorities : {QString(), path("other.crt")}) {
        EXPECT_EQ(put(address, QStringLiteral("s3cret"), authorities), Outcome::Failed);
        EXPECT_EQ(trouble, Trouble::Certificate);
    }
    EXPECT_TRUE(server.seen.empty()) << "not a byte of a request";
    QUrl elsewhere = address;
    elsewhere.setHost(QStringLiteral("localhost"));
    EXPECT_EQ(put(elsewhere, QStringLiteral("s3cret"), path("own.crt")), Outcome::Failed) << "a name not certified";
    EXPECT_EQ(put(address, QStringLiteral("s3cret"), path("own.crt")), Outcome::Done);
    EXPECT_EQ(server.stored, document);
    elsewhere.setScheme(QStringLiteral("http"));
    EXPECT_EQ(put(elsewhere, QStringLiteral("s3cret")), Outcome::Failed);
}

/// Gives one answer to everything.
class OneAnswer final : public URLSession
{
public:
    URLResult perform(const URLRequest& request) override
    {
        asked += request.credentials ? QStringLiteral("+") : QStringLiteral("-");
        return result;
    }
    URLResult result;
    QString asked;
};

TEST_F(CalDAVLoginTest, TellsWhatIsWrong)
{
    struct Case
    {
        const char* address;
        int status;
        URLError::Kind kind;
        const char* field;
        Trouble trouble;
        qsizetype requests;
    };
    using Kind = URLError::Kind;
    const char* const basic = "Basic realm=\"x\"";
    const std::vector<Case> cases{
        {"not an address", 0, Kind::Other, "", Trouble::BadAddress, 0},
        {"a.example", 0, Kind::NoSuchHost, "", Trouble::NoSuchHost, 1},
        {"a.example", 0, Kind::NoConnection, "", Trouble::NoConnection, 1},
        {"a.example", 0, Kind::NoEncryption, "", Trouble::NoEncryption, 1},
        {"a.example", 0, Kind::Certificate, "", Trouble::Certificate, 1},
        {"a.example/dav", 0, Kind::TimedOut, "", Trouble::TimedOut, 1},
        {"a.example", 401, Kind::Other, basic, Trouble::Password, 2},
        {"http://a.example", 401, Kind::Other, basic, Trouble::OpenLine, 1},
        {"a.example", 401, Kind::Other, "", Trouble::Password, 1},
        {"a.example", 403, Kind::Other, "", Trouble::Forbidden, 2},
        {"a.example", 404, Kind::Other, "", Trouble::NoCalendars, 2},
        {"a.example", 200, Kind::Other, "", Trouble::NoCalendars, 2},
        {"a.example", 301, Kind::Other, "", Trouble::Elsewhere, 2},
        {"a.example", 503, Kind::Other, "", Trouble::Server, 4},
    };
    for (const Case& each : cases) {
        OneAnswer session;
        if (each.status == 0) {
            session.result.error = URLError{QStringLiteral("no"), {}, {}, each.kind};
        } else {
            session.result.response.emplace();
            session.result.response->statusCode = each.status;
            session.result.response->headerFields.set("WWW-Authenticate", each.field);
            session.result.response->headerFields.set("Location", "https://b.example/");
            session.result.data = "<html/>";
        }
        CalDAVClient client(session, sleeper,
                            {QString::fromLatin1(each.address), QStringLiteral("ana"), QStringLiteral("s3cret")});
        const auto findings = client.examine();
        EXPECT_EQ(findings.trouble, each.trouble) << each.address << each.status;
        EXPECT_EQ(session.asked.size(), each.requests) << each.address << each.status;
        EXPECT_FALSE(findings.lastAnswer.isEmpty() || findings.lastAnswer.contains(QLatin1String("s3cret")));
    }
}

TEST_F(CalDAVLoginTest, AsksForAKeptPasswordOnceAndOnlyWhenTheServerWantsIt)
{
    for (const bool isKept : {true, false}) {
        OneAnswer session;
        session.result.response.emplace();
        session.result.response->statusCode = 207;
        session.result.data = "";
        int asked = 0;
        CalDAVClient client(session, sleeper, {QStringLiteral("a.example"), QStringLiteral("ana"), {}, [&] {
                                                   ++asked;
                                                   return isKept ? std::optional(QStringLiteral("s3cret"))
                                                                 : std::nullopt;
                                               }});
        client.examine();
        EXPECT_EQ(asked, 0);
        session.result.response->statusCode = 401;
        session.result.response->headerFields.set("WWW-Authenticate", "Basic realm=\"x\"");
        client.examine();
        EXPECT_EQ(client.examine().trouble, isKept ? Trouble::Password : Trouble::NoPassword);
        EXPECT_EQ(asked, 1);
        EXPECT_EQ(session.asked.contains(QLatin1Char('+')), isKept);
    }
}

} // namespace
} // namespace vidora
