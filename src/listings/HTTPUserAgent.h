#pragma once

#include "platform/Clock.h"

#include <QByteArray>

#include <mutex>

namespace vidora {

/// The browser that a run of the program gives itself out for: chosen at the first use, the same for every request
/// after it. Any thread.
class HTTPUserAgent
{
public:
    /// The source of chance outlives this object.
    explicit HTTPUserAgent(Random& random);
    /// Value of the header field "User-Agent".
    const QByteArray& value();

private:
    Random& m_random;
    std::once_flag m_chosen;
    QByteArray m_value;
};

} // namespace vidora
