#include "platform/Localized.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>

namespace vidora {

namespace {
constexpr auto context = "vidora";
}

QString localized(const char* key)
{
    return QCoreApplication::translate(context, key);
}

QString localized(const char* key, std::size_t count)
{
    constexpr std::size_t most = std::numeric_limits<int>::max();
    return QCoreApplication::translate(context, key, nullptr, static_cast<int>(std::min(count, most)));
}

} // namespace vidora
