#pragma once

#include "calendar/Event.h"

namespace vidora {

/// Two changes of one event as one: what differs between `base` and `ours` stands as in `ours`, everything else as in
/// `theirs`. Of the alarms, those that were added stay and those that were taken away go, whoever did it.
Event merged(const Event& base, const Event& ours, const Event& theirs);

/// An event that was made anew over one of the same broadcast that is there already: it stands as the new one has it
/// and rings when that does; what others put on it, alarms of theirs among it, stays.
Event laidOver(const Event& ours, const Event& theirs);

/// Whether two events are the same in everything that this program writes.
bool sameContent(const Event& a, const Event& b);

} // namespace vidora
