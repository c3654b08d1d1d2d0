#pragma once

#include <functional>

namespace vidora {

/// Starts a thread that belongs to nobody and runs until the work is over. A new thread takes over the niceness of the
/// one that made it and may not lower it; so all are made by one thread that keeps the niceness of the process.
void startThread(std::function<void()> work);

} // namespace vidora
