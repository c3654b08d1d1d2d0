#pragma once

#include <QString>

#include <functional>

namespace vidora::Log {

/// Diagnostics for a maintainer: plain lines without levels, whose wording is no interface. Nothing is formatted or
/// written until a sink is set (`--log` sets one that writes to standard error). May be called on any thread; the sink
/// is called by one thread at a time.
using Sink = std::function<void(const QString& line)>;
void setSink(Sink sink);
bool enabled();
void line(const QString& text);

} // namespace vidora::Log
