#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <compare>
#include <cstdint>
#include <functional>
#include <optional>

namespace vidora {

/// The 12-byte identity of a channel: key of the store's lists, of the selection and of the catalogue. A value type;
/// all bytes are 0 unless set. Its text form is 24 lower-case hexadecimal digits.
class ObjectId
{
public:
    static constexpr int length = 12;

    ObjectId() = default;
    /// Reads 24 characters two at a time. A pair is read as a hexadecimal scanner does: blanks in front are skipped,
    /// reading ends at the first other character, and a pair without a digit leaves its byte 0. A text of any other
    /// length gives the all-zero id: this never fails.
    static ObjectId initWithHex(QStringView hex);
    /// Takes exactly 12 bytes; any other length gives the all-zero id.
    static ObjectId initWithData(const QByteArray& data);

    /// Key of the list of popular shows.
    static const ObjectId& popular();
    /// Key of the merged list of all channels.
    static const ObjectId& all();

    QString hex() const;
    QByteArray data() const;
    /// djb2 over the bytes in 64-bit arithmetic.
    std::uint64_t hash() const;
    bool isEqualToObjectId(const ObjectId& other) const { return *this == other; }

    friend bool operator==(const ObjectId&, const ObjectId&) = default;
    friend auto operator<=>(const ObjectId&, const ObjectId&) = default;

private:
    std::array<std::uint8_t, length> m_bytes{};
};

} // namespace vidora

template<>
struct std::hash<vidora::ObjectId>
{
    std::size_t operator()(const vidora::ObjectId& id) const noexcept { return id.hash(); }
};
