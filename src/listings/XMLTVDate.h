#pragma once

#include "platform/Instant.h"

#include <QStringView>

#include <optional>
#include <string_view>

namespace vidora {

/// A date of the XMLTV DTD: fourteen digits, an optional blank, an offset (+HH, +HHmm, +HH:mm or Z). Nothing without an
/// offset, for a day or time that does not exist, or for anything else. Read by hand: a guide holds two of them for
/// each programme, and a formatter costs more than all the rest of the reading.
std::optional<Instant> xmltvDate(QStringView text);

/// The same on the bytes of a document.
std::optional<Instant> xmltvDate(std::string_view utf8);

} // namespace vidora
