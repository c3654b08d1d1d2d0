#pragma once

#include "platform/Descriptor.h"

#include <csignal>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QSocketNotifier;

namespace vidora {

/// Brings the system's requests to end to the main thread: the handler is called there, from the event loop, with the
/// number of the signal, once for each that came. While it lives these signals no longer end the process.
///
/// Made and destroyed on the main thread while there is an application object; one at a time in a process, as what a
/// signal does belongs to the process.
class Signals
{
public:
    using Handler = std::function<void(int signal)>;

    explicit Signals(Handler handler, const std::vector<int>& signals = {SIGTERM, SIGINT, SIGHUP});
    ~Signals();
    Signals(const Signals&) = delete;
    Signals& operator=(const Signals&) = delete;

private:
    void deliver();

    const Handler m_handler;
    Descriptor m_readEnd;
    Descriptor m_writeEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::vector<std::pair<int, struct sigaction>> m_before;
};

} // namespace vidora
