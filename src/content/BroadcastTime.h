#pragma once

#include "platform/Instant.h"

#include <QString>

namespace vidora {

/// The time of day of a broadcast as lists show it: the device's short time format in the device's zone, with two
/// digits for the hour so that times line up, and a day-half marker in small letters without a blank ("09:05pm").
QString broadcastTimeText(Instant instant);

} // namespace vidora
