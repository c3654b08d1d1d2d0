#pragma once

#include <QString>

#include <string_view>

namespace vidora {

/// A text that came as UTF-8, whole: one that begins with U+FEFF keeps it, which the library's own conversion takes for
/// a byte order mark and drops. Pure; any thread.
QString textFromUtf8(std::string_view utf8);

} // namespace vidora
