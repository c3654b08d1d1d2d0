#include "content/LiteralReplace.h"

namespace vidora {

QString replacingLiterally(const QString& text, QStringView from, QStringView to)
{
    qsizetype found = text.indexOf(from);
    if (found < 0)
        return text;
    QString result;
    result.reserve(text.size());
    qsizetype kept = 0;
    while (found >= 0) {
        result += QStringView(text).mid(kept, found - kept);
        result += to;
        kept = found + from.size();
        found = text.indexOf(from, kept);
    }
    result += QStringView(text).mid(kept);
    return result;
}

} // namespace vidora
