#include "platform/Signals.h"

#include <QSocketNotifier>

#include <atomic>
#include <cassert>
#include <cerrno>
#include <fcntl.h>

namespace vidora {

namespace {

std::atomic<int> pipeForHandler = -1;

// signal-safety(7): a write is allowed here, little else is. A pipe that is full has enough signals in it.
void writeToPipe(int signal)
{
    const int errorBefore = errno;
    const auto number = static_cast<unsigned char>(signal);
    [[maybe_unused]] const auto written = ::write(pipeForHandler, &number, 1);
    errno = errorBefore;
}

} // namespace

Signals::Signals(Handler handler, const std::vector<int>& signals)
    : m_handler(std::move(handler))
{
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_NONBLOCK | O_CLOEXEC) != 0)
        return;
    m_readEnd = Descriptor(ends[0]);
    m_writeEnd = Descriptor(ends[1]);
    assert(pipeForHandler == -1);
    pipeForHandler = m_writeEnd.number();

    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd.number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { deliver(); });

    for (const int signal : signals) {
        struct sigaction action = {};
        action.sa_handler = writeToPipe;
        action.sa_flags = SA_RESTART;
        sigfillset(&action.sa_mask);
        struct sigaction before = {};
        if (::sigaction(signal, &action, &before) == 0)
            m_before.emplace_back(signal, before);
    }
}

Signals::~Signals()
{
    for (const auto& [signal, action] : m_before)
        ::sigaction(signal, &action, nullptr);
    if (m_writeEnd)
        pipeForHandler = -1;
}

void Signals::deliver()
{
    unsigned char number = 0;
    if (::read(m_readEnd.number(), &number, 1) == 1)
        m_handler(number);
}

} // namespace vidora
