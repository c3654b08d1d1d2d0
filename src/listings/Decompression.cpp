#include "listings/Decompression.h"

#include "platform/Log.h"

#include <lzma.h>
#include <vector>
#include <zlib.h>

namespace vidora {

namespace {

constexpr std::size_t chunkSize = 0x20000;
/// A dictionary of 64 MiB, which the highest preset takes, and what the decoder needs beside it.
constexpr std::uint64_t decoderMemoryLimit = 80ULL * 1024 * 1024;

/// Hands over a chunk and counts: Complete to go on.
class ChunkReceiver
{
public:
    ChunkReceiver(qint64 limit, const Page::Sink& sink)
        : m_left(limit)
        , m_sink(sink)
    {
    }

    Page::Outcome take(const std::vector<char>& chunk, std::size_t size)
    {
        m_left -= static_cast<qint64>(size);
        m_empty = m_empty && size == 0;
        if (m_left < 0)
            return Page::Outcome::Faulty;
        return size == 0 || m_sink({chunk.data(), size}) ? Page::Outcome::Complete : Page::Outcome::Stopped;
    }
    /// A file without content is no document.
    Page::Outcome end() const { return m_empty ? Page::Outcome::Faulty : Page::Outcome::Complete; }

private:
    qint64 m_left;
    bool m_empty = true;
    const Page::Sink& m_sink;
};

struct XzDecoder
{
    XzDecoder() { ready = lzma_stream_decoder(&stream, decoderMemoryLimit, 0) == LZMA_OK; }
    XzDecoder(const XzDecoder&) = delete;
    XzDecoder& operator=(const XzDecoder&) = delete;
    ~XzDecoder() { lzma_end(&stream); }
    lzma_stream stream = LZMA_STREAM_INIT;
    bool ready = false;
};

struct GzipDecoder
{
    GzipDecoder()
    {
        constexpr int gzipOnly = 16 + MAX_WBITS;
        ready = inflateInit2(&stream, gzipOnly) == Z_OK;
    }
    GzipDecoder(const GzipDecoder&) = delete;
    GzipDecoder& operator=(const GzipDecoder&) = delete;
    ~GzipDecoder()
    {
        if (ready)
            inflateEnd(&stream);
    }
    z_stream stream = {};
    bool ready = false;
};

} // namespace

Page::Outcome decodeXz(const QByteArray& file, qint64 limit, const Page::Sink& sink)
{
    XzDecoder decoder;
    if (!decoder.ready)
        return Page::Outcome::Faulty;
    lzma_stream& stream = decoder.stream;
    stream.next_in = reinterpret_cast<const std::uint8_t*>(file.constData());
    stream.avail_in = static_cast<std::size_t>(file.size());
    std::vector<char> chunk(chunkSize);
    ChunkReceiver receiver(limit, sink);
    lzma_ret state = LZMA_OK;
    while (state == LZMA_OK) {
        stream.next_out = reinterpret_cast<std::uint8_t*>(chunk.data());
        stream.avail_out = chunk.size();
        while (state == LZMA_OK && stream.avail_out > 0)
            state = lzma_code(&stream, LZMA_FINISH);
        if (state != LZMA_OK && state != LZMA_STREAM_END)
            return Page::Outcome::Faulty;
        const Page::Outcome outcome = receiver.take(chunk, chunk.size() - stream.avail_out);
        if (outcome != Page::Outcome::Complete)
            return outcome;
    }
    return receiver.end();
}

Page::Outcome decodeGzip(const QByteArray& file, qint64 limit, const Page::Sink& sink)
{
    GzipDecoder decoder;
    if (!decoder.ready) {
        Log::line(QStringLiteral("ret != Z_OK"));
        return Page::Outcome::Faulty;
    }
    z_stream& stream = decoder.stream;
    stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(file.constData()));
    stream.avail_in = static_cast<uInt>(file.size());
    std::vector<char> chunk(chunkSize);
    ChunkReceiver receiver(limit, sink);
    do {
        stream.next_out = reinterpret_cast<Bytef*>(chunk.data());
        stream.avail_out = static_cast<uInt>(chunk.size());
        const int state = inflate(&stream, Z_NO_FLUSH);
        if (state != Z_OK && state != Z_STREAM_END) {
            Log::line(QStringLiteral("inflate: ret != Z_OK %1").arg(state));
            return Page::Outcome::Faulty;
        }
        const Page::Outcome outcome = receiver.take(chunk, chunk.size() - stream.avail_out);
        if (outcome != Page::Outcome::Complete)
            return outcome;
    } while (stream.avail_out == 0); // a chunk that isn't full was the last one
    return receiver.end();
}

} // namespace vidora
