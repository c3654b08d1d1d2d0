#include "content/ObjectId.h"

#include <algorithm>

namespace vidora {

namespace {

int hexValue(QChar character)
{
    const char16_t unit = character.unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'a' && unit <= u'f')
        return unit - u'a' + 10;
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return -1;
}

std::uint8_t byteOfPair(QStringView pair)
{
    while (!pair.isEmpty() && pair.front().isSpace())
        pair = pair.mid(1);
    int value = 0;
    for (const QChar character : pair) {
        const int digit = hexValue(character);
        if (digit < 0)
            break;
        value = value * 16 + digit;
    }
    return static_cast<std::uint8_t>(value);
}

} // namespace

ObjectId ObjectId::initWithHex(QStringView hex)
{
    ObjectId id;
    if (hex.size() != 2 * length)
        return id;
    for (int i = 0; i < length; ++i)
        id.m_bytes[static_cast<std::size_t>(i)] = byteOfPair(hex.mid(2 * i, 2));
    return id;
}

ObjectId ObjectId::initWithData(const QByteArray& data)
{
    ObjectId id;
    if (data.size() == length)
        std::copy(data.begin(), data.end(), id.m_bytes.begin());
    return id;
}

const ObjectId& ObjectId::popular()
{
    static const ObjectId id = initWithHex(u"59e1d5ed80bcfcbc75d89fae");
    return id;
}

const ObjectId& ObjectId::all()
{
    static const ObjectId id = initWithHex(u"59e1d5f280bcfcbc75d89faf");
    return id;
}

QString ObjectId::hex() const
{
    return QString::fromLatin1(data().toHex());
}

QByteArray ObjectId::data() const
{
    return QByteArray(reinterpret_cast<const char*>(m_bytes.data()), length);
}

std::uint64_t ObjectId::hash() const
{
    std::uint64_t hash = 5381;
    for (const std::uint8_t byte : m_bytes)
        hash = hash * 33 + byte;
    return hash;
}

} // namespace vidora
