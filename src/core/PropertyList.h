#pragma once

#include <QByteArray>
#include <QVariant>

#include <optional>

namespace vidora {

/// Reads a property list, XML or binary, into maps, lists, texts, numbers, booleans, dates and bytes. Nothing for bytes
/// that are no property list, or that nest or expand beyond what any real one does. Any thread.
std::optional<QVariant> readPropertyList(const QByteArray& bytes);

/// Writes maps, lists, texts and numbers as an XML property list. Any thread.
QByteArray writePropertyList(const QVariant& value);

} // namespace vidora
