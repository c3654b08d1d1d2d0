#include "platform/MemoryWarnings.h"

#include <QFile>
#include <QSocketNotifier>

#include <fcntl.h>
#include <poll.h>

namespace vidora {

MemoryWarnings::MemoryWarnings(Handler handler, const Clock& clock, Descriptor trigger)
    : m_handler(std::move(handler))
    , m_clock(clock)
    , m_trigger(std::move(trigger))
{
    if (!m_trigger)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_trigger.number(), QSocketNotifier::Exception);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { warn(); });
}

MemoryWarnings::~MemoryWarnings() = default;

Descriptor MemoryWarnings::openTrigger(const QStringList& files)
{
    // Some task stalled for 200 ms within 2 s. Windows of whole 2 s are open to every user. The final zero belongs to
    // it.
    static constexpr char trigger[] = "some 200000 2000000";
    for (const QString& name : files) {
        Descriptor file(::open(QFile::encodeName(name).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
        if (file && ::write(file.number(), trigger, sizeof trigger) == sizeof trigger)
            return file;
    }
    return {};
}

QStringList MemoryWarnings::pressureFiles()
{
    QStringList files{QStringLiteral("/proc/pressure/memory")};
    QFile groups(QStringLiteral("/proc/self/cgroup"));
    if (!groups.open(QIODevice::ReadOnly))
        return files;
    // cgroups(7): the line of the unified hierarchy.
    for (const QByteArray& line : groups.readAll().split('\n')) {
        if (line.startsWith("0::/"))
            files.append(QStringLiteral("/sys/fs/cgroup") + QFile::decodeName(line.mid(3)) +
                         QStringLiteral("/memory.pressure"));
    }
    return files;
}

void MemoryWarnings::warn()
{
    // A control group that is gone reports an error for ever.
    pollfd state{m_trigger.number(), POLLPRI, 0};
    if (::poll(&state, 1, 0) > 0 && (state.revents & (POLLERR | POLLNVAL)) != 0) {
        m_notifier->setEnabled(false);
        return;
    }
    const Instant now = m_clock.now();
    // A clock set back must not silence the warnings.
    if (m_last && now >= *m_last && now - *m_last < shortestGap)
        return;
    m_last = now;
    m_handler();
}

} // namespace vidora
