#include "store/FoldedShows.h"

#include "content/TextFolding.h"
#include "platform/DispatchQueue.h"
#include "store/ByteSearch.h"

#include <algorithm>
#include <atomic>
#include <bit>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vidora {

namespace {

constexpr std::uint8_t separator = 0;
constexpr std::uint8_t noByte = 0; ///< for a unit that is dropped

/// Neighbouring units beyond ASCII get different bytes, so that the letters of one alphabet are told apart.
std::uint8_t byteOfFolded(char16_t unit)
{
    constexpr char16_t firstBeyondAscii = 0x80;
    if (unit < firstBeyondAscii)
        return std::uint8_t(std::max<char16_t>(unit, 1));
    return std::uint8_t(firstBeyondAscii | (unit % firstBeyondAscii));
}

using ByteTable = std::array<std::uint8_t, 0x10000>;

const ByteTable& byteTable()
{
    static const auto table = [] {
        auto bytes = std::make_unique<ByteTable>();
        const FoldingTable& folded = foldingTable(Folding::CaseAndDiacritics);
        for (std::size_t unit = 0; unit < bytes->size(); ++unit)
            (*bytes)[unit] = folded[unit] == droppedUnit ? noByte : byteOfFolded(folded[unit]);
        return bytes;
    }();
    return *table;
}

/// Calls `visit(piece, endsText)` for all searched texts of a show, in pieces where a text has runs.
template<typename Visit>
void forEachPiece(const ShowElement& show, Visit&& visit)
{
    const auto plain = [&](const std::optional<QString>& text) {
        if (text && !text->isEmpty())
            visit(QStringView(*text), true);
    };
    const auto attributed = [&](const std::optional<AttributedText>& text) {
        if (!text)
            return;
        for (const AttributedText::Run& run : text->runs())
            visit(QStringView(run.text), &run == &text->runs().back());
    };
    const TVEntry& entry = *show.entry;
    plain(entry.title());
    plain(entry.instantDescription());
    plain(entry.instantDetails());
    plain(entry.subtitle());
    if (!show.extra)
        return;
    attributed(show.extra->description);
    plain(show.extra->episodeDescription);
    plain(show.extra->details);
    plain(show.extra->directedBy);
    attributed(show.extra->roles);
}

/// The most bytes that the show's texts can take. Fetches the texts' beginnings meanwhile: they lie scattered over the
/// memory, and folding one after the other would wait for each.
std::size_t roomFor(const ShowElement& show)
{
    std::size_t room = 0;
    forEachPiece(show, [&](QStringView piece, bool) {
        constexpr qsizetype unitsInLine = 32;
        for (qsizetype i = 0; i < std::min(piece.size(), 6 * unitsInLine); i += unitsInLine)
            __builtin_prefetch(piece.utf16() + i);
        room += std::size_t(piece.size()) + 1;
    });
    return room;
}

std::uint8_t* foldOneByOne(const char16_t* units, const char16_t* end, std::uint8_t* out)
{
    const ByteTable& table = byteTable();
    for (; units != end; ++units) {
        const std::uint8_t byte = table[*units];
        *out = byte;
        out += byte != noByte;
    }
    return out;
}

#ifdef __SSE2__
constexpr qsizetype unitsAtOnce = 16;

__m128i lowerCaseOfAscii(__m128i units)
{
    const __m128i isUpper =
        _mm_and_si128(_mm_cmpgt_epi16(units, _mm_set1_epi16('A' - 1)), _mm_cmplt_epi16(units, _mm_set1_epi16('Z' + 1)));
    const __m128i lower = _mm_add_epi16(units, _mm_and_si128(isUpper, _mm_set1_epi16('a' - 'A')));
    return _mm_max_epi16(lower, _mm_set1_epi16(1));
}

/// Folds 16 units as if they were ASCII, then mends those that are not. Where one of these is dropped, the bytes would
/// move, so all are folded one by one.
std::uint8_t* foldAtOnce(const char16_t* units, std::uint8_t* out)
{
    const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units));
    const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(units + 8));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_packus_epi16(lowerCaseOfAscii(low), lowerCaseOfAscii(high)));
    const __m128i beyondAscii = _mm_set1_epi16(static_cast<std::int16_t>(0xff80));
    const __m128i isAscii = _mm_packs_epi16(_mm_cmpeq_epi16(_mm_and_si128(low, beyondAscii), _mm_setzero_si128()),
                                            _mm_cmpeq_epi16(_mm_and_si128(high, beyondAscii), _mm_setzero_si128()));
    auto others = static_cast<std::uint32_t>(_mm_movemask_epi8(isAscii)) ^ 0xffffU;
    const ByteTable& table = byteTable();
    for (; others != 0; others &= others - 1) {
        const int at = std::countr_zero(others);
        const std::uint8_t byte = table[units[at]];
        if (byte == noByte)
            return foldOneByOne(units, units + unitsAtOnce, out);
        out[at] = byte;
    }
    return out + unitsAtOnce;
}
#endif

std::uint8_t* fold(QStringView text, std::uint8_t* out)
{
    const char16_t* units = text.utf16();
    const char16_t* const end = units + text.size();
#ifdef __SSE2__
    for (; end - units >= unitsAtOnce; units += unitsAtOnce)
        out = foldAtOnce(units, out);
#endif
    return foldOneByOne(units, end, out);
}

std::uint8_t* fold(const ShowElement& show, std::uint8_t* out)
{
    forEachPiece(show, [&](QStringView piece, bool endsText) {
        out = fold(piece, out);
        if (endsText)
            *out++ = separator;
    });
    return out;
}

} // namespace

SearchPattern::SearchPattern(QStringView pattern)
    : m_units(FoldedText(pattern).units().toString())
    , m_exact(true)
{
    constexpr char16_t firstExact = 2; // 0 and 1 share a byte
    for (const QChar unit : m_units) {
        m_bytes.push_back(byteOfFolded(unit.unicode()));
        m_exact = m_exact && unit.unicode() >= firstExact && unit.unicode() < 0x80;
    }
}

bool SearchPattern::isIn(const ShowElement& show) const
{
    QString text;
    bool found = false;
    forEachPiece(show, [&](QStringView piece, bool endsText) {
        text += piece;
        if (!endsText)
            return;
        found = found || FoldedText(text).units().contains(m_units);
        text.clear();
    });
    return found;
}

FoldedShows::FoldedShows(std::shared_ptr<const ShowList> shows, const FoldedShows* previous)
    : m_shows(std::move(shows))
    , m_blocks((m_shows->size() + showsPerBlock - 1) / showsPerBlock)
{
    std::atomic<std::size_t> next = 0;
    const auto work = [&](TextArena& arena) {
        for (std::size_t block = next++; block < m_blocks.size(); block = next++)
            fill(block, previous, arena);
    };
    DispatchGroup helper;
    if (m_blocks.size() > 1)
        helper.async(DispatchQueue::global(QualityOfService::UserInitiated), [&] { work(m_arenas[1]); });
    work(m_arenas[0]);
    helper.wait();
}

void FoldedShows::fill(std::size_t index, const FoldedShows* previous, TextArena& arena)
{
    const std::size_t first = index * showsPerBlock;
    const std::size_t last = std::min(first + showsPerBlock, m_shows->size());
    std::vector<std::optional<std::size_t>> earlier(last - first);
    if (previous)
        earlier = previous->placesOf(m_shows->begin() + std::ptrdiff_t(first), m_shows->begin() + std::ptrdiff_t(last));
    std::size_t room = 0;
    for (std::size_t i = first; i < last; ++i)
        room += earlier[i - first] ? previous->textsOf(*earlier[i - first]).size() : roomFor(*(*m_shows)[i]);

    Block& block = m_blocks[index];
    block.begins.reserve(last - first + 1);
    std::uint8_t* const begin = arena.take(room);
    std::uint8_t* out = begin;
    for (std::size_t i = first; i < last; ++i) {
        block.begins.push_back(std::uint32_t(out - begin));
        const auto& place = earlier[i - first];
        out = place ? std::ranges::copy(previous->textsOf(*place), out).out : fold(*(*m_shows)[i], out);
    }
    block.begins.push_back(std::uint32_t(out - begin));
    block.bytes = begin;
    arena.giveBackFrom(out);
}

std::vector<std::optional<std::size_t>> FoldedShows::placesOf(ShowList::const_iterator first,
                                                              ShowList::const_iterator last) const
{
    constexpr std::ptrdiff_t mostAtOnce = 500; // shows that start together are looked through one by one
    const auto startsEarlier = [](const Show& a, const Show& b) { return a->entry->dateTime() < b->entry->dateTime(); };
    std::vector<std::optional<std::size_t>> places;
    auto next =
        first == last ? m_shows->end() : std::lower_bound(m_shows->begin(), m_shows->end(), *first, startsEarlier);
    for (; first != last; ++first) {
        // What stayed mostly follows what stayed, so that no times need to be looked at.
        auto place = next;
        if (place == m_shows->end() || *place != *first) {
            while (next != m_shows->end() && startsEarlier(*next, *first))
                ++next;
            const auto end = next + std::min(mostAtOnce, m_shows->end() - next);
            place = std::find(next, end, *first);
            if (place == end)
                place = m_shows->end();
        }
        if (place == m_shows->end()) {
            places.push_back(std::nullopt);
            continue;
        }
        places.push_back(std::size_t(place - m_shows->begin()));
        next = place + 1;
    }
    return places;
}

std::span<const std::uint8_t> FoldedShows::textsOf(std::size_t show) const
{
    const Block& block = m_blocks[show / showsPerBlock];
    const std::size_t at = show % showsPerBlock;
    return {block.bytes + block.begins[at], block.bytes + block.begins[at + 1]};
}

std::size_t FoldedShows::find(const SearchPattern& pattern, std::size_t from) const
{
    while (from < m_shows->size()) {
        const std::size_t index = from / showsPerBlock;
        const Block& block = m_blocks[index];
        const std::uint8_t* const begin = block.bytes;
        const std::uint8_t* const end = begin + block.begins.back();
        const std::uint8_t* const found = findBytes(textsOf(from).data(), end, pattern.m_bytes);
        if (found == end) {
            from = (index + 1) * showsPerBlock;
            continue;
        }
        const auto behind = std::upper_bound(block.begins.begin(), block.begins.end(), std::uint32_t(found - begin));
        from = index * showsPerBlock + std::size_t(behind - block.begins.begin()) - 1;
        if (pattern.m_exact || pattern.isIn(*(*m_shows)[from]))
            return from;
        ++from;
    }
    return m_shows->size();
}

bool FoldedShows::holds(std::size_t show, const SearchPattern& pattern) const
{
    const auto texts = textsOf(show);
    const std::uint8_t* const end = texts.data() + texts.size();
    return findBytes(texts.data(), end, pattern.m_bytes) != end && (pattern.m_exact || pattern.isIn(*(*m_shows)[show]));
}

} // namespace vidora
