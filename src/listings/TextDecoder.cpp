#include "listings/TextDecoder.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <iconv.h>

namespace vidora {

namespace {

const unsigned char* afterAscii(const unsigned char* at, const unsigned char* end)
{
    constexpr std::uint64_t highBits = 0x8080'8080'8080'8080;
    std::uint64_t words[4];
    while (end - at >= 32) {
        std::memcpy(words, at, sizeof words);
        if (((words[0] | words[1] | words[2] | words[3]) & highBits) != 0)
            break;
        at += 32;
    }
    while (at < end && *at < 0x80)
        ++at;
    return at;
}

bool isContinuation(unsigned char byte)
{
    return (byte & 0xC0) == 0x80;
}

/// Nothing has to be changed in these bytes: they only have to be well-formed.
class Utf8Decoder final : public TextDecoder
{
public:
    explicit Utf8Decoder(const Page::Sink& sink)
        : TextDecoder(sink)
    {
    }
    Page::Outcome decode(std::string_view bytes) override
    {
        return m_validator.accepts(bytes) ? handOver(bytes) : Page::Outcome::Faulty;
    }
    Page::Outcome end() override { return m_validator.atBoundary() ? Page::Outcome::Complete : Page::Outcome::Faulty; }

private:
    Utf8Validator m_validator;
};

class IconvDecoder final : public TextDecoder
{
public:
    IconvDecoder(iconv_t descriptor, const Page::Sink& sink)
        : TextDecoder(sink)
        , m_descriptor(descriptor)
    {
    }
    ~IconvDecoder() override { iconv_close(m_descriptor); }
    Page::Outcome decode(std::string_view bytes) override;
    Page::Outcome end() override;

private:
    const iconv_t m_descriptor;
    std::string m_cut; ///< the beginning of a character whose end is in the next piece
    std::array<char, 0x10000> m_output;
};

Page::Outcome IconvDecoder::decode(std::string_view bytes)
{
    std::string joined;
    if (!m_cut.empty()) {
        joined = std::exchange(m_cut, {}).append(bytes);
        bytes = joined;
    }
    char* input = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    while (left > 0) {
        char* output = m_output.data();
        std::size_t room = m_output.size();
        const std::size_t before = left;
        const std::size_t result = iconv(m_descriptor, &input, &left, &output, &room);
        const int error = result == static_cast<std::size_t>(-1) ? errno : 0;
        const std::size_t written = m_output.size() - room;
        if (error == EILSEQ || (written == 0 && left == before && error != EINVAL))
            return Page::Outcome::Faulty;
        if (written > 0) {
            const Page::Outcome outcome = handOver({m_output.data(), written});
            if (outcome != Page::Outcome::Complete)
                return outcome;
        }
        if (error == EINVAL) {
            m_cut.assign(input, left);
            break;
        }
    }
    return Page::Outcome::Complete;
}

Page::Outcome IconvDecoder::end()
{
    if (!m_cut.empty())
        return Page::Outcome::Faulty;
    // Some character sets hold back a letter in case a combining mark follows.
    char* output = m_output.data();
    std::size_t room = m_output.size();
    if (iconv(m_descriptor, nullptr, nullptr, &output, &room) == static_cast<std::size_t>(-1))
        return Page::Outcome::Faulty;
    return room == m_output.size() ? Page::Outcome::Complete : handOver({m_output.data(), m_output.size() - room});
}

/// Whether a text has the form of an IANA name. The system's converter would skip other characters and take options
/// behind a slash; names that mean "whatever this program uses" are its own.
bool mayBeCharsetName(const QByteArray& name)
{
    for (const char character : name) {
        const bool letter = (character >= 'A' && character <= 'Z') || (character >= '0' && character <= '9');
        if (!letter && !std::strchr("-_.:+()", character))
            return false;
    }
    return !name.isEmpty() && !name.contains('\0') && name != "INTERNAL" && name != "WCHAR_T" && name != "CHAR";
}

} // namespace

Page::Outcome TextDecoder::handOver(std::string_view utf8)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (!std::exchange(m_started, true) && utf8.substr(0, 3) == byteOrderMark)
        utf8.remove_prefix(3);
    return utf8.empty() || m_sink(utf8) ? Page::Outcome::Complete : Page::Outcome::Stopped;
}

std::unique_ptr<TextDecoder> TextDecoder::forCharset(const QByteArray& charset, const Page::Sink& sink)
{
    if (charset == "UTF-8")
        return std::make_unique<Utf8Decoder>(sink);
    if (!mayBeCharsetName(charset))
        return nullptr;
    const iconv_t descriptor = iconv_open("UTF-8", charset.constData());
    if (descriptor == reinterpret_cast<iconv_t>(-1))
        return nullptr;
    return std::make_unique<IconvDecoder>(descriptor, sink);
}

bool Utf8Validator::begin(unsigned char lead)
{
    if (lead < 0xC2 || lead > 0xF4)
        return false;
    m_missing = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    // No longer form than needed, no surrogates, nothing above U+10FFFF.
    m_low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    m_high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    return true;
}

bool Utf8Validator::accepts(std::string_view bytes)
{
    const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
    const auto* const end = at + bytes.size();
    while (at < end) {
        if (m_missing == 0) {
            at = afterAscii(at, end);
            while (end - at >= 2 && at[0] >= 0xC2 && at[0] < 0xE0 && isContinuation(at[1]))
                at += 2;
            if (at == end)
                break;
            if (*at >= 0x80 && !begin(*at))
                return false;
        } else {
            if (*at < m_low || *at > m_high)
                return false;
            m_low = 0x80;
            m_high = 0xBF;
            --m_missing;
        }
        ++at;
    }
    return true;
}

} // namespace vidora
