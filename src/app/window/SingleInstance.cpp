#include "app/window/SingleInstance.h"

#include "platform/Log.h"

#include <QCryptographicHash>
#include <QLocalSocket>
#include <QPointer>

namespace vidora {

namespace {
constexpr int patience = 2'000; // milliseconds
} // namespace

SingleInstance::SingleInstance(const QString& name)
    : m_name(QStringLiteral("vidora-") +
             QString::fromLatin1(QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha256).toHex().left(24)))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] { receive(); });
}

bool SingleInstance::handOver(const QString& message) const
{
    QLocalSocket socket;
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(message.toUtf8().left(longestMessage - 1) + '\n');
    if (!socket.waitForBytesWritten(patience))
        return false;
    // An answer, since a process that hangs or is about to end takes bytes as well.
    return socket.waitForReadyRead(patience) && socket.readAll().startsWith("ok");
}

void SingleInstance::listen(std::function<void(const QString&)> handler)
{
    m_handler = std::move(handler);
    if (m_server.listen(m_name))
        return;
    // Nobody answered, so what lies there was left by a process that ended without tidying up.
    QLocalServer::removeServer(m_name);
    if (!m_server.listen(m_name))
        Log::line(QStringLiteral("single instance: %1").arg(m_server.errorString()));
}

void SingleInstance::close()
{
    m_server.close();
    m_handler = {};
}

void SingleInstance::receive()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QObject::connect(socket, &QLocalSocket::readyRead, socket, [this, socket] {
            if (socket->bytesAvailable() > longestMessage)
                return socket->abort();
            if (!socket->canReadLine())
                return;
            const QString message = QString::fromUtf8(socket->readLine(longestMessage)).trimmed();
            if (m_handler)
                socket->write("ok\n");
            socket->flush();
            socket->disconnectFromServer();
            if (m_handler)
                m_handler(message);
        });
    }
}

} // namespace vidora
