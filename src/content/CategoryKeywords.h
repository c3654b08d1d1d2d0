#pragma once

#include "content/TVListingsCategory.h"

#include <cstdint>
#include <initializer_list>

namespace vidora {

/// What the words of one text say, as a set of bits. Words that stand for a category are split in two, because the mark
/// of a film that is a series takes back the film and series bits of the former alone.
namespace Finding {
using Set = std::uint64_t;
constexpr Set early(TVListingsCategory bits)
{
    return bits;
}
constexpr Set late(TVListingsCategory bits)
{
    return Set(bits) << 17;
}
constexpr TVListingsCategory earlyBits(Set findings)
{
    return TVListingsCategory(findings) & category::all;
}
constexpr TVListingsCategory lateBits(Set findings)
{
    return TVListingsCategory(findings >> 17) & category::all;
}

constexpr Set sport = Set(1) << 34; ///< the one that counts inside other words, too
constexpr Set opera = Set(1) << 35; ///< music, unless it is a soap opera
constexpr Set soapOpera = Set(1) << 36;
constexpr Set marathon = Set(1) << 37; ///< sports, unless it is a marathon of films
constexpr Set filmMarathon = Set(1) << 38;
constexpr Set seriesFilm = Set(1) << 39; ///< a series, whatever film words stand beside it
constexpr Set southPark = Set(1) << 40;  ///< a cartoon, but not for children
constexpr Set reportage = Set(1) << 41;
constexpr Set alwaysSeries = Set(1) << 42; ///< a title that film words mislead
constexpr Set neverFilm = Set(1) << 43;    ///< the same
constexpr Set story = Set(1) << 44;
constexpr Set filmLetter = Set(1) << 45;
constexpr Set seriesLetter = Set(1) << 46;
} // namespace Finding

struct CategoryKeywords
{
    Finding::Set findings;
    std::initializer_list<const char16_t*> words;
};

extern const std::initializer_list<CategoryKeywords> categoryKeywords;

} // namespace vidora
