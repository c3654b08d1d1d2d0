#include "sample-region/Container.h"

#include <lzma.h>
#include <stdexcept>
#include <zlib.h>

namespace vidora::region {

namespace {

const unsigned char* unsignedBytes(std::string_view bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.data());
}

unsigned char* unsignedBytes(std::string& bytes)
{
    return reinterpret_cast<unsigned char*>(bytes.data());
}

} // namespace

std::string gzipFile(std::string_view bytes)
{
    z_stream stream{};
    constexpr int gzipWindow = 15 + 16;
    if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindow, 8, Z_DEFAULT_STRATEGY) != Z_OK)
        throw std::runtime_error("gzip: no memory");
    std::string file(deflateBound(&stream, bytes.size()), '\0');
    stream.next_in = const_cast<Bytef*>(unsignedBytes(bytes));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = unsignedBytes(file);
    stream.avail_out = uInt(file.size());
    deflate(&stream, Z_FINISH);
    file.resize(stream.total_out);
    deflateEnd(&stream);
    return file;
}

std::string xzFile(std::string_view bytes)
{
    // Readers refuse a file that grows too much. A guide out of so few words would, under a window that sees all of it.
    lzma_options_lzma options;
    lzma_lzma_preset(&options, 0);
    options.dict_size = LZMA_DICT_SIZE_MIN;
    lzma_filter filters[] = {{LZMA_FILTER_LZMA2, &options}, {LZMA_VLI_UNKNOWN, nullptr}};
    std::string file(lzma_stream_buffer_bound(bytes.size()), '\0');
    std::size_t size = 0;
    if (lzma_stream_buffer_encode(filters, LZMA_CHECK_CRC32, nullptr, unsignedBytes(bytes), bytes.size(),
                                  unsignedBytes(file), &size, file.size()) != LZMA_OK)
        throw std::runtime_error("xz: encoding failed");
    file.resize(size);
    return file;
}

} // namespace vidora::region
