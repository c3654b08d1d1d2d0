#include "content/LiteralSearch.h"

namespace vidora {

// The vectorised search for the first unit beats the library's search for a whole text by far on texts that do not
// hold the marker, which is nearly all of them.
qsizetype indexOfLiteral(QStringView text, QStringView marker, qsizetype from)
{
    for (qsizetype at = text.indexOf(marker.front(), from); at >= 0; at = text.indexOf(marker.front(), at + 1)) {
        if (text.mid(at).startsWith(marker))
            return at;
    }
    return -1;
}

QString replacingLiterally(const QString& text, QStringView from, QStringView to)
{
    qsizetype found = indexOfLiteral(text, from);
    if (found < 0)
        return text;
    QString result;
    result.reserve(text.size());
    qsizetype kept = 0;
    while (found >= 0) {
        result += QStringView(text).mid(kept, found - kept);
        result += to;
        kept = found + from.size();
        found = indexOfLiteral(text, from, kept);
    }
    result += QStringView(text).mid(kept);
    return result;
}

} // namespace vidora
