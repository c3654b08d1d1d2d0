#include "content/Utf8Text.h"

namespace vidora {

QString textFromUtf8(std::string_view utf8)
{
    QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    if (utf8.substr(0, 3) == "\xEF\xBB\xBF")
        text.prepend(QChar::ByteOrderMark);
    return text;
}

} // namespace vidora
