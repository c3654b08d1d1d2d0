#include "calendar/DAVMultistatus.h"

#include <cstdlib>

/// Answers of calendar servers: whatever they hold is read or not, within bounds, and nothing outside of them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto read = vidora::DAVMultistatus::read(body);
    if (!read)
        return 0;
    if (read->responses.size() > 50'000)
        std::abort();
    for (const vidora::DAVResponse& response : read->responses) {
        if (response.href.isEmpty() || response.texts.size() > 1000 || response.status < 0 || response.status > 999)
            std::abort();
        for (const auto& [property, elements] : response.elements) {
            if (!response.texts.contains(property))
                std::abort();
        }
    }
    return 0;
}
