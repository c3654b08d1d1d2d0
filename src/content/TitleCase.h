#pragma once

#include <QLocale>
#include <QString>

namespace vidora {

/// Whether the text holds letters, all of them capitals: it has an upper-case letter and no lower-case one.
bool isInCapitals(QStringView text);

/// Every word with an initial capital, the rest small, by the rules of the locale. A word begins at a letter that
/// follows no letter; marks belong to their letter, and an apostrophe between two letters parts no word.
QString capitalized(QStringView text, const QLocale& locale);

} // namespace vidora
