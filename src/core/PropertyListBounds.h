#pragma once

#include <QByteArray>

namespace vidora {

/// Whether a property list may be handed to the library that reads it. The library follows nesting by recursion, and
/// copies an object of a binary list for every reference to it, so that a few bytes could nest or grow without end.
/// It also ends the process on a text with a zero character. False for a document above 16 MiB, nested deeper than 64,
/// expanding to more than a million values, or with such a text. Any thread.
bool propertyListIsBounded(const QByteArray& bytes);

} // namespace vidora
