#pragma once

#include <QString>
#include <QStringView>

namespace vidora {

/// The text with every occurrence of `from` replaced by `to`, in one pass from left to right, so that what was put in
/// is never looked at again. Compares UTF-16 units, takes time linear in the text for the short markers it is meant
/// for, and gives the very text back where there is nothing to replace. `from` is not empty.
QString replacingLiterally(const QString& text, QStringView from, QStringView to);

} // namespace vidora
