#pragma once

#include "listings/Page.h"

namespace vidora {

/// Turns bytes in a character set into UTF-8, piece by piece; a character may be cut by the end of a piece. A byte
/// order mark at the beginning is dropped. The sink outlives the decoder.
class TextDecoder
{
public:
    /// `charset`: IANA name in capitals. Nothing for one that is not known.
    static std::unique_ptr<TextDecoder> forCharset(const QByteArray& charset, const Page::Sink& sink);
    virtual ~TextDecoder() = default;

    /// Complete to go on; Faulty when the bytes do not fit; Stopped when the sink wanted no more.
    virtual Page::Outcome decode(std::string_view bytes) = 0;
    /// The end of the bytes: Faulty when it cuts a character.
    virtual Page::Outcome end() = 0;

protected:
    explicit TextDecoder(const Page::Sink& sink)
        : m_sink(sink)
    {
    }
    Page::Outcome handOver(std::string_view utf8);

private:
    const Page::Sink& m_sink;
    bool m_started = false;
};

/// Whether bytes are well-formed UTF-8 (RFC 3629), looked at piece by piece.
class Utf8Validator
{
public:
    /// False at the first byte that doesn't fit; then nothing more may be asked.
    bool accepts(std::string_view bytes);
    /// False inside a character.
    bool atBoundary() const { return m_missing == 0; }

private:
    bool begin(unsigned char lead);
    int m_missing = 0;          ///< bytes that the present character still needs
    unsigned char m_low = 0x80; ///< range of the next of them
    unsigned char m_high = 0xBF;
};

} // namespace vidora
