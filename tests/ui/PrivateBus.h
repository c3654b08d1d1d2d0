#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace vidora::test {

/// A message bus of the test's own.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                        QStringLiteral("--address=unix:path=") + m_folder.filePath(QStringLiteral("bus"))});
        EXPECT_TRUE(m_daemon.waitForReadyRead()) << m_daemon.errorString().toStdString();
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus()
    {
        for (const QString& name : m_names)
            QDBusConnection::disconnectFromBus(name);
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    QDBusConnection connection(const char* name)
    {
        m_names << QString::fromLatin1(name);
        return QDBusConnection::connectToBus(m_address, m_names.last());
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_names;
};

} // namespace vidora::test
