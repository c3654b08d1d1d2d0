#pragma once

#include <QString>

#include <cstddef>
#include <memory>

namespace vidora {

/// A regular file held open for reading. What was opened stays readable as it was, though its name be removed or given
/// to another file. Where others cut the file itself short, a read fails, and nothing worse happens: that is why such
/// files are read at places and not mapped. Any thread.
class OpenFile
{
public:
    /// Nothing where there is no such file, where it is a folder, pipe or device, or where the process may hold no more
    /// files. Keeps away from the low descriptors, since some libraries can wait for no others.
    static std::unique_ptr<const OpenFile> open(const QString& path);
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// As it was when the file was opened.
    std::size_t size() const { return m_size; }
    /// Fills all of `to`; false where the file has not so many bytes there.
    bool read(std::size_t offset, char* to, std::size_t size) const;

private:
    OpenFile(int descriptor, std::size_t size);

    const int m_descriptor;
    const std::size_t m_size;
};

} // namespace vidora
