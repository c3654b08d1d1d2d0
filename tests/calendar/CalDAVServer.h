#pragma once

#include "CalendarSupport.h"
#include "platform/URLSession.h"

#include <arpa/inet.h>
#include <atomic>
#include <functional>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace vidora::test {

/// A real calendar server on the loopback, with a user "ana" who has the calendars "tv" and "home", and may only read
/// "shared". Its folders hold the events as files, which a test reads and writes as the rest of the world does.
class CalDAVServer
{
public:
    CalDAVServer()
    {
        port = freePort();
        const QString calendars = folder.filePath(QStringLiteral("store/collection-root/ana/"));
        const auto make = [&](const char* name, const char* properties) {
            writeRaw(calendars + QString::fromLatin1(name) + QStringLiteral("/.Radicale.props"), properties);
        };
        make("tv", R"({"tag": "VCALENDAR", "D:displayname": "TV", "ICAL:calendar-color": "#FF0080FF"})");
        make("home", R"({"tag": "VCALENDAR", "D:displayname": "Home"})");
        make("shared", R"({"tag": "VCALENDAR", "D:displayname": "Shared"})");
        make("people", R"({"tag": "VADDRESSBOOK", "D:displayname": "People"})");
        writeRaw(folder.filePath(QStringLiteral("users")), "ana:s3cret\n");
        writeRaw(folder.filePath(QStringLiteral("rights")), "[root]\nuser: .+\ncollection:\npermissions: R\n"
                                                            "[shared]\nuser: .+\ncollection: ana/shared\n"
                                                            "permissions: r\n[own]\nuser: .+\ncollection: "
                                                            "{user}(/[^/]+)?\npermissions: RWrw\n");
        writeRaw(folder.filePath(QStringLiteral("config")),
                 "[server]\nhosts = 127.0.0.1:" + QByteArray::number(port) +
                     "\n[auth]\ntype = htpasswd\nhtpasswd_encryption = plain\ndelay = 0\nhtpasswd_filename = " +
                     folder.filePath(QStringLiteral("users")).toUtf8() +
                     "\n[rights]\ntype = from_file\nfile = " + folder.filePath(QStringLiteral("rights")).toUtf8() +
                     "\n[storage]\nfilesystem_folder = " + folder.filePath(QStringLiteral("store")).toUtf8() +
                     "\n[logging]\nlevel = warning\n");
        start();
    }
    /// Begins to answer at its address, and no longer does.
    void start()
    {
        process.emplace(QByteArrayList{"radicale", "--config", folder.filePath(QStringLiteral("config")).toUtf8()},
                        folder.filePath(QStringLiteral("log")));
        while (!answers() && process->runs())
            std::this_thread::yield();
        EXPECT_TRUE(answers()) << "radicale doesn't start: "
                               << readRaw(folder.filePath(QStringLiteral("log"))).toStdString();
    }
    void stop() { process.reset(); }
    QString address() const { return QStringLiteral("http://127.0.0.1:%1").arg(port); }
    QString calendar(const char* name) const
    {
        return folder.filePath(QStringLiteral("store/collection-root/ana/")) + QString::fromLatin1(name);
    }

private:
    static sockaddr_in place(int port)
    {
        sockaddr_in result = {};
        result.sin_family = AF_INET;
        result.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        result.sin_port = htons(static_cast<std::uint16_t>(port));
        return result;
    }
    static int freePort()
    {
        const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in any = place(0);
        socklen_t size = sizeof any;
        EXPECT_EQ(::bind(descriptor, reinterpret_cast<sockaddr*>(&any), size), 0);
        EXPECT_EQ(::getsockname(descriptor, reinterpret_cast<sockaddr*>(&any), &size), 0);
        ::close(descriptor);
        return ntohs(any.sin_port);
    }
    bool answers() const
    {
        const int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const sockaddr_in there = place(port);
        const bool connected = ::connect(descriptor, reinterpret_cast<const sockaddr*>(&there), sizeof there) == 0;
        ::close(descriptor);
        return connected;
    }

    int port = 0;
    QTemporaryDir folder;
    std::optional<ChildProcess> process;
};

/// A session between the store and the server that can answer in its place, or lose what the server answered.
class FaultySession final : public URLSession
{
public:
    enum class Fault
    {
        None,
        Status,    ///< `status`, without asking the server
        Silence,   ///< no answer, and the server was never asked
        HalfSent,  ///< the connection broke in the middle of what was sent
        LostReply, ///< the server did it, the answer was lost
        Page,      ///< a page of HTML with status 200
        CutOff     ///< a body that ends half-way, as if it were whole
    };

    explicit FaultySession(URLSession& session)
        : m_session(session)
    {
    }

    URLResult perform(const URLRequest& request) override
    {
        ++requests;
        if (fault == Fault::None || (!method.isEmpty() && request.httpMethod != method) ||
            !request.url.text().contains(address))
            return m_session.perform(request);
        if (fault == Fault::Status || fault == Fault::Page) {
            URLResponse response;
            response.statusCode = fault == Fault::Page ? 200 : status;
            response.headerFields.set("Content-Type", "text/html; charset=utf-8");
            return {QByteArray("<html><p>Sorry"), response, std::nullopt};
        }
        if (fault != Fault::Silence) {
            URLRequest sent = request;
            if (fault == Fault::HalfSent && sent.httpBody)
                sent.httpBody->truncate(sent.httpBody->size() / 2);
            URLResult result = m_session.perform(sent);
            if (fault == Fault::CutOff && result.data)
                result.data->truncate(result.data->size() / 2);
            if (fault == Fault::CutOff)
                return result;
        }
        return {std::nullopt, std::nullopt, URLError{QStringLiteral("connection lost"), {}, {}}};
    }

    Fault fault = Fault::None;
    QByteArray method; ///< the requests that it happens to; empty for all
    QString address;   ///< a part of their address
    int status = 0;
    std::atomic<int> requests = 0;

private:
    URLSession& m_session;
};

} // namespace vidora::test
