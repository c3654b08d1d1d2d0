#include "sample-region/Pictures.h"

#include "sample-region/Documents.h"

#include <QString>

#include <cstdint>
#include <cstdio>
#include <zlib.h>

namespace vidora::region {

namespace {

std::uint32_t checksum(std::string_view text)
{
    return std::uint32_t(crc32(0, reinterpret_cast<const Bytef*>(text.data()), uInt(text.size())));
}

std::string bigEndian(std::uint32_t value)
{
    return {char(value >> 24U), char(value >> 16U), char(value >> 8U), char(value)};
}

std::string chunk(const std::string& type, const std::string& data)
{
    return bigEndian(std::uint32_t(data.size())) + type + data + bigEndian(checksum(type + data));
}

/// First letters of the first two words, or a number in the second word's place.
std::string initials(std::string_view title)
{
    QString letters;
    for (const QString& word : QString::fromUtf8(title.data(), qsizetype(title.size())).split(u' '))
        if (letters.size() < 2)
            letters += word.front() == u'+' ? word : QString(word.front().toUpper());
    return letters.toStdString();
}

} // namespace

std::string channelIcon(const RegionChannel& channel)
{
    const std::uint32_t key = checksum(channel.title.substr(0, channel.title.find(' ')));
    char hue[8], turned[8];
    std::snprintf(hue, sizeof hue, "#%02x%02x%02x", unsigned(40 + key % 130), unsigned(40 + (key >> 8U) % 130),
                  unsigned(40 + (key >> 16U) % 130));
    std::snprintf(turned, sizeof turned, "%d", int(checksum(channel.title) % 90));
    return filled(R"svg(<svg xmlns="http://www.w3.org/2000/svg" width="100" height="72" viewBox="0 0 100 72">
  <rect width="100" height="72" rx="14" fill="{hue}"/>
  <rect x="62" y="-16" width="44" height="44" rx="8" fill="#fff" fill-opacity="0.2" transform="rotate({turned} 84 6)"/>
  <text x="50" y="49" font-family="sans-serif" font-size="36" font-weight="bold" fill="#fff" text-anchor="middle">{initials}</text>
</svg>
)svg",
                  {{"hue", hue}, {"turned", turned}, {"initials", initials(channel.title)}});
}

std::string showPicture(std::string_view name)
{
    constexpr unsigned width = 320, height = 180;
    const std::uint32_t key = checksum(name);
    std::string rows;
    for (unsigned y = 0; y < height; ++y) {
        rows += '\0'; // rows without a filter
        for (unsigned x = 0; x < width; ++x) {
            const unsigned wave = ((x * (key % 7 + 1)) ^ (y * ((key >> 3U) % 5 + 1))) / 8;
            for (const unsigned shift : {0U, 8U, 16U})
                rows += char(((key >> shift) % 120) + wave % 64 + y / 3);
        }
    }
    uLongf size = compressBound(uLong(rows.size()));
    std::string packed(size, '\0');
    compress(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(rows.data()),
             uLong(rows.size()));
    packed.resize(size);
    const std::string header = bigEndian(width) + bigEndian(height) + std::string{8, 2, 0, 0, 0};
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) + chunk("IDAT", packed) + chunk("IEND", {});
}

} // namespace vidora::region
