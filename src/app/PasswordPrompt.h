#pragma once

#include <QString>

#include <optional>

namespace vidora {

/// Asks for a password: on a terminal with `question`, without showing what is typed; else it is the first line of
/// standard input. Nothing when there is none, when it is longer than any password, or when the user gave up.
std::optional<QString> readPassword(const QString& question);

} // namespace vidora
