#include "core/PropertyListBounds.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace vidora {

namespace {

constexpr qsizetype maximumSize = 16 * 1024 * 1024;
constexpr int maximumDepth = 64;
constexpr std::uint64_t maximumValues = 1'000'000;

bool opensElement(std::string_view rest, std::string_view name)
{
    return rest.substr(0, name.size()) == name && rest.size() > name.size() &&
           (rest[name.size()] == '>' || rest[name.size()] == ' ');
}

// The library ends the process on a text that holds a zero character; XML can name one only by a reference.
bool namesZero(std::string_view reference)
{
    const bool isHex = !reference.empty() && (reference.front() == 'x' || reference.front() == 'X');
    const std::string_view digits = reference.substr(isHex ? 1 : 0, 8);
    const std::size_t end = std::min(digits.find(';'), digits.size());
    return end == digits.size() || digits.substr(0, end).find_first_not_of('0') == std::string_view::npos;
}

bool xmlHasZero(std::string_view xml)
{
    if (xml.find('\0') != std::string_view::npos)
        return true;
    for (std::size_t at = xml.find("&#"); at != std::string_view::npos; at = xml.find("&#", at + 2)) {
        if (namesZero(xml.substr(at + 2)))
            return true;
    }
    return false;
}

bool xmlIsBounded(std::string_view xml)
{
    if (xmlHasZero(xml))
        return false;
    int depth = 0;
    for (std::size_t at = xml.find('<'); at != std::string_view::npos; at = xml.find('<', at + 1)) {
        const std::string_view rest = xml.substr(at + 1);
        if (opensElement(rest, "dict") || opensElement(rest, "array")) {
            if (++depth > maximumDepth)
                return false;
        } else if (opensElement(rest, "/dict") || opensElement(rest, "/array")) {
            --depth;
        } else if (rest.substr(0, 8) == "!ENTITY ") {
            return false;
        }
    }
    return true;
}

// The binary format: objects, a table of their offsets, and a trailer of 32 bytes that describes the table.
class BinaryObjects
{
public:
    static std::optional<BinaryObjects> open(std::span<const std::uint8_t> bytes)
    {
        constexpr std::size_t trailerSize = 32;
        if (bytes.size() < 8 + trailerSize)
            return std::nullopt;
        BinaryObjects objects(bytes);
        const std::size_t trailer = bytes.size() - trailerSize;
        objects.m_offsetSize = bytes[trailer + 6];
        objects.m_referenceSize = bytes[trailer + 7];
        objects.m_count = objects.number(trailer + 8, 8);
        objects.m_root = objects.number(trailer + 16, 8);
        objects.m_table = objects.number(trailer + 24, 8);
        const bool plausible = objects.m_offsetSize >= 1 && objects.m_offsetSize <= 8 && objects.m_referenceSize >= 1 &&
                               objects.m_referenceSize <= 8 && objects.m_table < trailer &&
                               objects.m_count <= (trailer - objects.m_table) / objects.m_offsetSize;
        if (!plausible || objects.m_root >= objects.m_count)
            return std::nullopt;
        objects.m_expanded.assign(objects.m_count, 0);
        objects.m_height.assign(objects.m_count, 0);
        return objects;
    }

    bool isBounded() { return expandedValues(m_root, 0).has_value(); }

private:
    explicit BinaryObjects(std::span<const std::uint8_t> bytes)
        : m_bytes(bytes)
    {
    }

    std::uint64_t number(std::uint64_t at, std::uint64_t size) const
    {
        std::uint64_t value = 0;
        for (std::uint64_t i = 0; i < size && at + i < m_bytes.size(); ++i)
            value = value << 8 | m_bytes[at + i];
        return value;
    }

    // How many values the object stands for once every reference has become a copy; nothing when there is no end to it.
    std::optional<std::uint64_t> expandedValues(std::uint64_t object, int depth)
    {
        if (object >= m_count || depth > maximumDepth)
            return std::nullopt;
        // A result that was found at a lesser depth may hide a deeper nesting: the depth of a value is bounded by its
        // own expansion, so keep the two together.
        if (m_expanded[object] != 0 && depth + m_height[object] <= maximumDepth)
            return m_expanded[object];
        const std::uint64_t at = number(m_table + object * m_offsetSize, m_offsetSize);
        if (!textIsSound(at))
            return std::nullopt;
        std::uint64_t values = 1;
        std::uint8_t height = 0;
        for (const std::uint64_t child : children(at)) {
            const auto inner = expandedValues(child, depth + 1);
            if (!inner || (values += *inner) > maximumValues)
                return std::nullopt;
            height = std::max<std::uint8_t>(height, static_cast<std::uint8_t>(m_height[child] + 1));
        }
        m_height[object] = height;
        return m_expanded[object] = values;
    }

    // The size of the object at this place, which is moved to its content.
    std::uint64_t sizeOf(std::uint64_t& at) const
    {
        std::uint64_t size = m_bytes[at] & 15;
        ++at;
        if (size == 15 && at < m_bytes.size()) {
            const std::uint64_t width = std::uint64_t{1} << (m_bytes[at] & 3);
            size = number(at + 1, width);
            at += 1 + width;
        }
        return size;
    }

    // The library ends the process on a text that holds a zero character, and can't convert half a surrogate pair.
    bool textIsSound(std::uint64_t at) const
    {
        if (at >= m_bytes.size())
            return true;
        const int kind = m_bytes[at] >> 4;
        if (kind != 0x5 && kind != 0x6)
            return true;
        const std::uint64_t width = kind == 0x5 ? 1 : 2;
        const std::uint64_t size = sizeOf(at);
        bool pairIsOpen = false;
        for (std::uint64_t i = 0; i < size && at + width <= m_bytes.size(); ++i, at += width) {
            const std::uint64_t unit = number(at, width);
            const bool isLow = unit >= 0xdc00 && unit < 0xe000;
            if (unit == 0 || isLow != pairIsOpen)
                return false;
            pairIsOpen = unit >= 0xd800 && unit < 0xdc00;
        }
        return !pairIsOpen;
    }

    std::vector<std::uint64_t> children(std::uint64_t at) const
    {
        if (at >= m_bytes.size())
            return {};
        const int kind = m_bytes[at] >> 4;
        if (kind != 0xa && kind != 0xc && kind != 0xd)
            return {};
        const std::uint64_t size = sizeOf(at);
        if (size > m_bytes.size())
            return {};
        std::vector<std::uint64_t> result;
        for (std::uint64_t i = 0; i < size * (kind == 0xd ? 2 : 1) && at < m_bytes.size(); ++i, at += m_referenceSize)
            result.push_back(number(at, m_referenceSize));
        return result;
    }

    std::span<const std::uint8_t> m_bytes;
    std::uint64_t m_offsetSize = 0, m_referenceSize = 0, m_count = 0, m_root = 0, m_table = 0;
    std::vector<std::uint64_t> m_expanded;
    std::vector<std::uint8_t> m_height;
};

} // namespace

bool propertyListIsBounded(const QByteArray& bytes)
{
    if (bytes.size() > maximumSize)
        return false;
    if (!bytes.startsWith("bplist"))
        return xmlIsBounded({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    auto objects = BinaryObjects::open(
        {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
    return objects && objects->isBounded();
}

} // namespace vidora
