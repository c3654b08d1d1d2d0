#include "store/ByteSearch.h"

#include <algorithm>
#include <bit>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vidora {

const std::uint8_t* findBytes(const std::uint8_t* begin, const std::uint8_t* end, const std::vector<std::uint8_t>& word)
{
    const std::size_t length = word.size();
    if (std::size_t(end - begin) < length)
        return end;
#if defined(__SSE2__)
    // Places where both the first and the last byte fit are rare enough to be looked at one by one.
    constexpr std::ptrdiff_t width = sizeof(__m128i);
    const __m128i first = _mm_set1_epi8(char(word.front()));
    const __m128i last = _mm_set1_epi8(char(word.back()));
    const auto load = [](const std::uint8_t* from) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)); };
    for (const std::uint8_t* behind = begin + length - 1; end - behind >= width; begin += width, behind += width) {
        const __m128i fits = _mm_and_si128(_mm_cmpeq_epi8(load(begin), first), _mm_cmpeq_epi8(load(behind), last));
        for (auto places = unsigned(_mm_movemask_epi8(fits)); places != 0; places &= places - 1) {
            const std::uint8_t* const place = begin + std::countr_zero(places);
            if (std::memcmp(place, word.data(), length) == 0)
                return place;
        }
    }
#endif
    return std::search(begin, end, word.begin(), word.end());
}

} // namespace vidora
