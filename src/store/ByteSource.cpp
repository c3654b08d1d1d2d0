#include "store/ByteSource.h"

#include "platform/AtomicFile.h"
#include "platform/OpenFile.h"

namespace vidora {

namespace {

class MemorySource final : public ByteSource
{
public:
    explicit MemorySource(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }
    std::size_t size() const override { return static_cast<std::size_t>(m_bytes.size()); }
    std::optional<std::string_view> read(std::size_t offset, std::size_t length, QByteArray&) const override
    {
        if (offset > size() || length > size() - offset)
            return std::nullopt;
        return std::string_view(m_bytes.constData() + offset, length);
    }

private:
    const QByteArray m_bytes;
};

class FileSource final : public ByteSource
{
public:
    explicit FileSource(std::unique_ptr<const OpenFile> file)
        : m_file(std::move(file))
    {
    }
    std::size_t size() const override { return m_file->size(); }
    std::optional<std::string_view> read(std::size_t offset, std::size_t length, QByteArray& scratch) const override
    {
        if (offset > size() || length > size() - offset)
            return std::nullopt;
        scratch.resize(static_cast<qsizetype>(length));
        if (!m_file->read(offset, scratch.data(), length))
            return std::nullopt;
        return std::string_view(scratch.constData(), length);
    }

private:
    const std::unique_ptr<const OpenFile> m_file;
};

} // namespace

std::shared_ptr<const ByteSource> ByteSource::ofMemory(QByteArray bytes)
{
    return std::make_shared<const MemorySource>(std::move(bytes));
}

std::shared_ptr<const ByteSource> ByteSource::ofFile(const QString& path, std::size_t maximumSize)
{
    if (auto file = OpenFile::open(path)) {
        if (file->size() > maximumSize)
            return nullptr;
        return std::make_shared<const FileSource>(std::move(file));
    }
    auto bytes = AtomicFile::read(path, static_cast<qint64>(maximumSize));
    return bytes ? ofMemory(std::move(*bytes)) : nullptr;
}

} // namespace vidora
