#pragma once

#include "app/Device.h"

namespace vidora {

/// `vidora import`: makes the guide at an address or in a file the user's own, and tells what was found. The process's
/// exit status.
int importGuide(const CommandLine& line, Device& device);

} // namespace vidora
