#include "sample-region/Documents.h"

#include <algorithm>
#include <iconv.h>

namespace vidora::region {

std::vector<SourcedChannel> channelsWithPrefix(std::string_view prefix)
{
    std::vector<SourcedChannel> found;
    for (const RegionChannel& channel : regionChannels())
        for (const std::string_view source : channel.sources)
            if (source.substr(0, prefix.size()) == prefix)
                found.push_back({&channel, std::string(source.substr(prefix.size()))});
    return found;
}

const RegionChannel* channelWithSource(std::string_view sourceId)
{
    for (const RegionChannel& channel : regionChannels())
        if (std::find(channel.sources.begin(), channel.sources.end(), sourceId) != channel.sources.end())
            return &channel;
    return nullptr;
}

std::string filled(std::string_view text, std::initializer_list<std::pair<std::string_view, std::string_view>> values)
{
    std::string result;
    while (!text.empty()) {
        const std::size_t brace = std::min(text.find('{'), text.size());
        result += text.substr(0, brace);
        text.remove_prefix(brace);
        const std::size_t end = text.find('}');
        const auto* value = std::find_if(values.begin(), values.end(), [&](const auto& candidate) {
            return end != std::string_view::npos && candidate.first == text.substr(1, end - 1);
        });
        if (value != values.end()) {
            result += value->second;
            text.remove_prefix(end + 1);
        } else if (!text.empty()) {
            result += text.front();
            text.remove_prefix(1);
        }
    }
    return result;
}

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text)
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += c;
        }
    return result;
}

std::string joined(const std::vector<std::string>& parts, std::string_view separator)
{
    std::string result;
    for (const std::string& part : parts)
        result.append(result.empty() ? std::string_view() : separator).append(part);
    return result;
}

std::string encoded(std::string_view text, const char* charset)
{
    const iconv_t converter = iconv_open(charset, "UTF-8");
    std::string source(text), result(text.size() * 2, '\0');
    char* in = source.data();
    char* out = result.data();
    std::size_t inLeft = source.size(), outLeft = result.size();
    while (inLeft > 0 && iconv(converter, &in, &inLeft, &out, &outLeft) == std::size_t(-1)) {
        do { // over the whole character
            ++in;
            --inLeft;
        } while (inLeft > 0 && (static_cast<unsigned char>(*in) & 0xC0U) == 0x80U);
        *out++ = '?';
        --outLeft;
    }
    iconv_close(converter);
    result.resize(result.size() - outLeft);
    return result;
}

} // namespace vidora::region
