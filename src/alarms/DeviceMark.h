#pragma once

#include "platform/Clock.h"

#include <QString>

namespace vidora {

/// The mark by which this device knows its own events in a calendar that several devices write to: hexadecimal digits,
/// made up once and kept in the file "device-mark" of the documents folder. Without the file a new one is made, and
/// where none can be kept it is empty.
QString deviceMark(const QString& documentsFolder, Random& random, bool readOnly);

} // namespace vidora
