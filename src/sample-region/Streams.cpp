#include "sample-region/Streams.h"

#include <QFile>
#include <QString>

#include <algorithm>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace vidora::region {

namespace {

std::string file(const std::string& name)
{
    QFile file(QStringLiteral(":/stream/") + QString::fromStdString(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

bool isStreamOfAChannel(const std::string& path)
{
    const std::string address = "http://127.0.0.1:" + std::to_string(fixedPort) + path;
    const auto& all = regionChannels();
    return std::any_of(all.begin(), all.end(), [&](const RegionChannel& channel) { return channel.stream == address; });
}

} // namespace

std::optional<Document> streamDocument(const std::string& path)
{
    constexpr std::string_view folder = "/stream/";
    if (path.rfind(folder, 0) != 0)
        return std::nullopt;
    if (isStreamOfAChannel(path))
        return Document{file("signal.m3u8"), "application/vnd.apple.mpegurl"};
    const std::string name = path.substr(folder.size());
    for (const char* piece : {"signal0.ts", "signal1.ts", "signal2.ts"})
        if (name == piece)
            return Document{file(name), "video/mp2t"};
    return std::nullopt;
}

SilentAddress::SilentAddress(int port)
    : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    const int yes = 1;
    setsockopt(m_socket.number(), SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const auto generic = reinterpret_cast<sockaddr*>(&address);
    socklen_t size = sizeof address;
    // Nobody ever accepts: the system completes connections by itself, and they wait in line for good.
    if (bind(m_socket.number(), generic, size) == 0 && listen(m_socket.number(), SOMAXCONN) == 0 &&
        getsockname(m_socket.number(), generic, &size) == 0)
        m_port = ntohs(address.sin_port);
}

} // namespace vidora::region
