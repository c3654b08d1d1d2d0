#pragma once

#include <QString>
#include <QStringView>

namespace vidora {

/// Where the marker first stands, from a place on; -1 where it doesn't. Compares UTF-16 units. Made for short markers.
/// `marker` is not empty; `from` is not negative.
qsizetype indexOfLiteral(QStringView text, QStringView marker, qsizetype from = 0);

/// The text with every occurrence of `from` replaced by `to`, in one pass from left to right, so that what was put in
/// is never looked at again. Takes time linear in the text for the short markers it is meant
/// for, and gives the very text back where there is nothing to replace. `from` is not empty.
QString replacingLiterally(const QString& text, QStringView from, QStringView to);

} // namespace vidora
