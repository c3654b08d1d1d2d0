#include "app/SampleRegionProcess.h"

#include "platform/Log.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QFile>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <vector>

extern char** environ;

namespace vidora {

namespace {

constexpr int startLimit = 20'000, endLimit = 2'000; // milliseconds
constexpr qsizetype longestAnswer = 1024 * 1024;

struct Pipe
{
    static std::optional<Pipe> make()
    {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            return std::nullopt;
        return Pipe{Descriptor(ends[0]), Descriptor(ends[1])};
    }
    Descriptor reading, writing;
};

/// Whether something can be read, be it the end.
bool isReadable(const Descriptor& descriptor, int limit)
{
    pollfd waited{descriptor.number(), POLLIN, 0};
    int ready = -1;
    do {
        ready = ::poll(&waited, 1, limit);
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

SampleRegionProcess::~SampleRegionProcess()
{
    if (m_process < 0)
        return;
    m_input = Descriptor(); // it ends when its standard input does
    if (!isReadable(m_output, endLimit))
        ::kill(m_process, SIGKILL);
    while (::waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

// Not QProcess: the way in which that clones the process leaves ThreadSanitizer without its locks.
bool SampleRegionProcess::spawn(const QByteArrayList& command)
{
    auto input = Pipe::make(), output = Pipe::make();
    if (!input || !output)
        return false;
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, input->reading.number(), STDIN_FILENO);
    ::posix_spawn_file_actions_adddup2(&actions, output->writing.number(), STDOUT_FILENO);
    std::vector<QByteArray> words(command.begin(), command.end());
    std::vector<char*> arguments;
    for (QByteArray& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    const int error = ::posix_spawn(&m_process, arguments[0], &actions, nullptr, arguments.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        m_process = -1;
        return false;
    }
    m_input = std::move(input->writing);
    m_output = std::move(output->reading);
    return true;
}

std::optional<QByteArray> SampleRegionProcess::start(std::optional<Instant> clock)
{
    QByteArrayList command{
        QFile::encodeName(QCoreApplication::applicationDirPath() + QLatin1String("/vidora-sample-region")),
        "--with-parent"};
    if (clock)
        command << "--clock" << isoText(*clock).toUtf8();
    QByteArray answer;
    bool isRunning = spawn(command);
    while (isRunning && !answer.endsWith('\n')) {
        std::array<char, 4096> piece;
        const ssize_t size =
            isReadable(m_output, startLimit) ? ::read(m_output.number(), piece.data(), piece.size()) : 0;
        isRunning = size > 0 && answer.size() < longestAnswer;
        answer.append(piece.data(), std::max<ssize_t>(size, 0));
    }
    if (isRunning)
        return answer;
    Log::line(QStringLiteral("sample region: it did not start"));
    return std::nullopt;
}

} // namespace vidora
