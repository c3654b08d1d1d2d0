#include "platform/URL.h"

#include <QByteArray>

namespace vidora {

namespace {

bool isHexDigit(QChar character)
{
    const char16_t unit = character.unicode();
    return (unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'f') || (unit >= u'A' && unit <= u'F');
}

// RFC 3986, appendix A: unreserved and reserved characters.
bool mayStand(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit >= 0x80)
        return false;
    if ((unit >= u'0' && unit <= u'9') || (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z'))
        return true;
    return QLatin1String("-._~:/?#[]@!$&'()*+,;=").contains(character);
}

bool isEscape(QStringView text, qsizetype at)
{
    return text[at] == QLatin1Char('%') && at + 2 < text.size() && isHexDigit(text[at + 1]) && isHexDigit(text[at + 2]);
}

QString percentEncoded(QStringView text)
{
    constexpr char digits[] = "0123456789ABCDEF";
    QString result;
    result.reserve(text.size() + 16);
    for (qsizetype i = 0; i < text.size();) {
        if (mayStand(text[i]) || isEscape(text, i)) {
            result += text[i++];
            continue;
        }
        const qsizetype length =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate() ? 2 : 1;
        for (const char byte : text.mid(i, length).toUtf8()) {
            const auto value = static_cast<unsigned char>(byte);
            result += QLatin1Char('%');
            result += QLatin1Char(digits[value >> 4]);
            result += QLatin1Char(digits[value & 15]);
        }
        i += length;
    }
    return result;
}

qsizetype schemeLength(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        if (character == QLatin1Char(':'))
            return i;
        const bool letter = character.isLetter();
        if (!letter && (i == 0 || !(character.isDigit() || QLatin1String("+-.").contains(character))))
            return 0;
    }
    return 0;
}

} // namespace

std::optional<URL> URL::fromText(QStringView text)
{
    if (text.isEmpty())
        return std::nullopt;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!mayStand(text[i]) && !isEscape(text, i))
            return URL(percentEncoded(text));
    }
    return URL(text.toString());
}

QString URL::scheme() const
{
    return m_text.left(schemeLength(m_text)).toLower();
}

QString URL::origin() const
{
    const qsizetype scheme = schemeLength(m_text);
    if (scheme == 0 || QStringView(m_text).mid(scheme, 3) != QLatin1String("://"))
        return {};
    qsizetype end = scheme + 3;
    while (end < m_text.size() && !QLatin1String("/?#").contains(m_text[end]))
        ++end;
    return m_text.left(end);
}

QString URL::host() const
{
    QString authority = origin().mid(schemeLength(m_text) + 3);
    authority = authority.mid(authority.lastIndexOf(QLatin1Char('@')) + 1);
    if (authority.startsWith(QLatin1Char('[')))
        return authority.mid(1, authority.indexOf(QLatin1Char(']')) - 1);
    const qsizetype port = authority.lastIndexOf(QLatin1Char(':'));
    return port < 0 ? authority : authority.left(port);
}

} // namespace vidora
