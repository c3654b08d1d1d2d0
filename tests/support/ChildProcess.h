#pragma once

#include <QByteArrayList>
#include <QString>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <vector>

extern char** environ;

namespace vidora::test {

/// Another program, for as long as the object lives; what it prints goes into a file. Not QProcess: that clones the
/// process in a way that ThreadSanitizer does not survive.
class ChildProcess
{
public:
    ChildProcess(const QByteArrayList& command, const QString& outputFile)
    {
        posix_spawn_file_actions_t actions;
        ::posix_spawn_file_actions_init(&actions);
        ::posix_spawn_file_actions_addopen(&actions, 1, outputFile.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC,
                                           0600);
        ::posix_spawn_file_actions_adddup2(&actions, 1, 2);
        QByteArrayList words = command;
        std::vector<char*> arguments;
        for (QByteArray& word : words)
            arguments.push_back(word.data());
        arguments.push_back(nullptr);
        if (::posix_spawnp(&m_process, arguments[0], &actions, nullptr, arguments.data(), environ) != 0)
            m_process = -1;
        ::posix_spawn_file_actions_destroy(&actions);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess()
    {
        if (m_process > 0)
            ::kill(m_process, SIGTERM);
        wait();
    }

    /// The exit code once it has ended; -1 when it did not run or not end by itself.
    int wait()
    {
        int status = -1;
        if (m_process > 0 && ::waitpid(m_process, &status, 0) != m_process)
            status = -1;
        m_process = -1;
        return status != -1 && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    bool runs()
    {
        if (m_process > 0 && ::waitpid(m_process, nullptr, WNOHANG) != 0)
            m_process = -1;
        return m_process > 0;
    }

private:
    pid_t m_process = -1;
};

} // namespace vidora::test
