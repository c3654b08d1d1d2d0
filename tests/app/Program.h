#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <map>

namespace vidora::test {

/// How a run of the program ended, and what it printed.
struct Ended
{
    int status = -1;
    QString output, errors;

    QJsonObject json() const { return QJsonDocument::fromJson(output.toUtf8()).object(); }
};

/// A home folder of its own, and the real program run on it, at a moment at which the clocks stand.
class Home
{
public:
    QString path(const QString& name = {}) const { return m_folder.filePath(QStringLiteral("home/") + name); }
    /// A place beside the home.
    QString file(const QString& name, const QByteArray& bytes) const
    {
        const QString path = m_folder.filePath(name);
        write(path, bytes);
        return path;
    }
    static void write(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

    void start(QProcess& process, const QStringList& arguments) const
    {
        // Without a display: a start without a command would open the window else.
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QString::fromLatin1(name));
        if (!language.isEmpty()) {
            environment.remove(QStringLiteral("LANGUAGE"));
            environment.insert(QStringLiteral("LC_ALL"), language);
        }
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(VIDORA_PROGRAM),
                      QStringList{QStringLiteral("--home"), path(), QStringLiteral("--clock"),
                                  QStringLiteral("2026-11-22T19:00:00Z")} +
                          arguments);
    }

    /// `input`: what comes by standard input.
    Ended run(const QStringList& arguments, const QByteArray& input = {}) const
    {
        QProcess process;
        start(process, arguments);
        process.write(input);
        process.closeWriteChannel();
        return end(process);
    }

    static Ended end(QProcess& process)
    {
        if (!process.waitForFinished(patience))
            process.kill();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()), QString::fromUtf8(process.readAllStandardError())};
    }

    /// Waits until the program has printed this to standard error. What it printed so far, empty when it never came.
    static QString waitForError(QProcess& process, const QString& text)
    {
        process.setReadChannel(QProcess::StandardError);
        QString errors;
        while (!errors.contains(text) && process.waitForReadyRead(patience))
            errors += QString::fromUtf8(process.readAllStandardError());
        return errors.contains(text) ? errors : QString();
    }

    /// The bytes of all files but the lock, which names its holder.
    std::map<QString, QByteArray> files() const
    {
        std::map<QString, QByteArray> found;
        QDirIterator all(path(), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext()) {
            QFile file(all.next());
            if (file.open(QIODevice::ReadOnly))
                found[file.fileName()] = file.readAll();
        }
        return found;
    }

    QString language; ///< as in LANG; empty for that of the tests

    static constexpr int patience = 60'000; // milliseconds, for a machine under load

private:
    QTemporaryDir m_folder;
};

} // namespace vidora::test
