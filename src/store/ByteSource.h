#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <string_view>

namespace vidora {

inline std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

/// Bytes that are read at places, in memory or in a file. They never change, except that a file may lose what others
/// take from it. Any thread.
class ByteSource
{
public:
    virtual ~ByteSource() = default;
    virtual std::size_t size() const = 0;
    /// The bytes at a place: in memory as they lie there, of a file copied to `scratch`, which must outlive the view.
    /// Nothing where they are not, or no longer.
    virtual std::optional<std::string_view> read(std::size_t offset, std::size_t size, QByteArray& scratch) const = 0;

    static std::shared_ptr<const ByteSource> ofMemory(QByteArray bytes);
    /// Keeps the file open; where the process may hold no more files, its bytes are read at once. Null for one that is
    /// missing, is no regular file or is longer than `maximumSize`.
    static std::shared_ptr<const ByteSource> ofFile(const QString& path, std::size_t maximumSize);
};

} // namespace vidora
