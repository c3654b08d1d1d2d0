#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <functional>

namespace vidora {

/// Keeps one window to a home: a second start hands what it was called with to the first, over a socket that only the
/// same user can reach, and ends. Main thread.
class SingleInstance
{
public:
    /// `name`: the same for every process of one home.
    explicit SingleInstance(const QString& name);

    /// True when another process has taken the message; an empty one asks it to come to the front.
    bool handOver(const QString& message) const;
    /// Becomes the one that others hand over to. Called with each message, on the main thread.
    void listen(std::function<void(const QString& message)> handler);
    /// Nobody hands over to this process any more.
    void close();

private:
    void receive();

    static constexpr qint64 longestMessage = 64 * 1024;

    const QString m_name;
    QLocalServer m_server;
    std::function<void(const QString&)> m_handler;
};

} // namespace vidora
