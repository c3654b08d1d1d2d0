#pragma once

#include "platform/Instant.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <string_view>

namespace vidora::bench {

/// A made-up XMLTV guide of any size, for measurements: titles, sub-titles, credits and genres look like those of real
/// feeds in Croatian, Serbian, Hungarian, Romanian, Czech and English. The same options give the same bytes anywhere.
struct GuideOptions
{
    int channels = 300;
    int days = 14;
    std::uint64_t seed = 1;
    Instant now; ///< the guide begins at the midnight ahead of it, in the guide's own offset
};

/// Feed id of a channel of the guide.
QByteArray guideChannelId(int channel);

/// Hands the document over piece by piece: 30 programmes a channel and day.
void writeGuide(const GuideOptions& options, const std::function<void(std::string_view)>& sink);

/// The document in an xz container, as a provider would publish it.
QByteArray guideAsXz(const GuideOptions& options);

} // namespace vidora::bench
