#pragma once

#include "calendar/CalDAVClient.h"

namespace vidora {

/// What is wrong with an account on a calendar server, in words for the user.
QString textOf(CalDAVClient::Trouble trouble);

} // namespace vidora
