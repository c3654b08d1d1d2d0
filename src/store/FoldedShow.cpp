#include "store/FoldedShow.h"

#include "content/LatinFolding.h"
#include "content/TextFolding.h"
#include "content/Utf8Text.h"

#include <algorithm>
#include <array>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vidora {

namespace {

constexpr char separator = 0;
constexpr std::uint8_t noByte = 0; ///< for a unit that is dropped
constexpr char16_t firstBeyondAscii = 0x80;
constexpr char32_t replacement = 0xfffd;

/// Neighbouring units beyond ASCII get different bytes, so that the letters of one alphabet are told apart.
std::uint8_t byteOfFolded(char16_t unit)
{
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

/// Takes one character off the front of a text that does not begin with ASCII. For what is no UTF-8 a replacement.
char32_t takeCharacter(const std::uint8_t*& text, const std::uint8_t* end)
{
    const std::uint8_t lead = *text++;
    const int further = lead >= 0xf0 ? 3 : lead >= 0xe0 ? 2 : 1;
    char32_t character = lead & (0x3f >> further);
    for (int i = 0; i < further; ++i) {
        if (text == end || (*text & 0xc0) != 0x80)
            return replacement;
        character = character << 6 | (*text++ & 0x3f);
    }
    return lead < 0xc0 || character > 0x10ffff ? replacement : character;
}

std::uint8_t* foldCharacter(char32_t character, std::uint8_t* out)
{
    const ByteTable& table = byteTable();
    const auto put = [&](char32_t unit) {
        const std::uint8_t byte = table[unit];
        *out = byte;
        out += byte != noByte;
    };
    if (character < 0x10000) {
        const auto latin = latinOfFolded(foldingTable(Folding::CaseAndDiacritics)[character]);
        if (latin.empty())
            put(character);
        for (const char16_t unit : latin) // two at most, for two bytes of UTF-8
            put(unit);
    } else {
        put(QChar::highSurrogate(character));
        put(QChar::lowSurrogate(character));
    }
    return out;
}

#ifdef __SSE2__
constexpr std::ptrdiff_t bytesAtOnce = 16;

/// Folds 16 bytes if all of them are ASCII.
bool foldAtOnce(const std::uint8_t* text, std::uint8_t* out)
{
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text));
    if (_mm_movemask_epi8(bytes) != 0)
        return false;
    const __m128i isUpper =
        _mm_and_si128(_mm_cmpgt_epi8(bytes, _mm_set1_epi8('A' - 1)), _mm_cmplt_epi8(bytes, _mm_set1_epi8('Z' + 1)));
    const __m128i lower = _mm_or_si128(bytes, _mm_and_si128(isUpper, _mm_set1_epi8('a' - 'A')));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_max_epu8(lower, _mm_set1_epi8(1)));
    return true;
}
#endif

/// There must be room for as many bytes as the text has.
std::uint8_t* fold(std::string_view utf8, std::uint8_t* out)
{
    const auto* text = reinterpret_cast<const std::uint8_t*>(utf8.data());
    const std::uint8_t* const end = text + utf8.size();
    const ByteTable& table = byteTable();
    while (text != end) {
#ifdef __SSE2__
        for (; end - text >= bytesAtOnce && foldAtOnce(text, out); text += bytesAtOnce)
            out += bytesAtOnce;
#endif
        while (text != end && *text < firstBeyondAscii)
            *out++ = table[*text++];
        if (text != end)
            out = foldCharacter(takeCharacter(text, end), out);
    }
    return out;
}

void appendFolded(std::string_view utf8, bool endsText, QByteArray& folded)
{
    const qsizetype began = folded.size();
    folded.resize(began + static_cast<qsizetype>(utf8.size()) + 1);
    auto* const out = reinterpret_cast<std::uint8_t*>(folded.data());
    std::uint8_t* end = fold(utf8, out + began);
    if (endsText)
        *end++ = separator;
    folded.truncate(end - out);
}

/// The record's own texts as the device shows them.
class ShownTexts
{
public:
    explicit ShownTexts(const ShowRecord& record)
        : m_record(record)
        , m_isConverted(TVEntry::cyrillicDevice())
        , m_language(m_isConverted ? textOf(ShowField::Language) : std::nullopt)
    {
    }
    void appendTo(QByteArray& folded, ShowField field, std::string_view content) const
    {
        if (content.empty())
            return;
        if (!m_isConverted)
            return appendFolded(content, true, folded);
        const TVEntry::Text own = textOf(field);
        const TVEntry::Text shown = TVEntry::latin2Cyrillic(own, m_language);
        appendFolded(shown->toUtf8().toStdString(), true, folded);
        if (field == ShowField::Title && shown != own) // letters that the conversion makes one can be typed apart
            appendFolded(content, true, folded);
    }

private:
    TVEntry::Text textOf(ShowField field) const
    {
        const auto content = m_record.field(field);
        return content ? std::optional(textFromUtf8(*content)) : std::nullopt;
    }
    const ShowRecord& m_record;
    const bool m_isConverted;
    const TVEntry::Text m_language;
};

bool showsSubtitleAsTitle(const ShowRecord& record)
{
    const auto channel = record.field(ShowField::Channel);
    return channel && TVEntry::showsSubtitleAsTitle(
                          ObjectId::initWithData(QByteArray(channel->data(), static_cast<qsizetype>(channel->size()))));
}

} // namespace

void appendFoldedTexts(const ShowRecord& record, QByteArray& folded)
{
    const ShownTexts shown(record);
    ShowField open = ShowField::FirstUnknown; // the text whose pieces are being put together
    const auto close = [&](ShowField next) {
        if (open != ShowField::FirstUnknown && open != next)
            folded.append(separator);
        open = ShowField::FirstUnknown;
    };
    record.forEachField([&](ShowField key, std::string_view content) {
        close(key);
        switch (key) {
        case ShowField::Title:
            if (!showsSubtitleAsTitle(record))
                shown.appendTo(folded, key, content);
            break;
        case ShowField::Details:
        case ShowField::Subtitle:
        case ShowField::Description:
            shown.appendTo(folded, key, content);
            break;
        case ShowField::ExtraDescription:
        case ShowField::EpisodeDescription:
        case ShowField::ExtraDetails:
        case ShowField::DirectedBy:
        case ShowField::Roles:
            if (!content.empty())
                appendFolded(content, true, folded);
            break;
        case ShowField::ExtraDescriptionRun:
        case ShowField::RolesRun:
            appendFolded(ShowRecord::textOfRun(content), false, folded);
            open = key;
            break;
        default:
            break;
        }
    });
    close(ShowField::FirstUnknown);
}

SearchPattern::SearchPattern(QStringView pattern)
    : m_units(foldedInLatin(pattern))
    , m_exact(true)
{
    constexpr char16_t firstExact = 2; // 0 and 1 share a byte
    for (const QChar unit : m_units) {
        m_bytes.push_back(byteOfFolded(unit.unicode()));
        m_exact = m_exact && unit.unicode() >= firstExact && unit.unicode() < firstBeyondAscii;
    }
}

bool SearchPattern::isIn(const ShowElement& show) const
{
    const auto isIn = [this](const std::optional<QString>& text) {
        return text && foldedInLatin(*text).contains(m_units);
    };
    const TVEntry& entry = *show.entry;
    if (isIn(entry.title()) || (entry.title() && holdsCyrillic(*entry.title()) && isIn(entry.identificator())) ||
        isIn(entry.instantDescription()) || isIn(entry.instantDetails()) || isIn(entry.subtitle()))
        return true;
    if (!show.extra)
        return false;
    const TVEntrySupplementalData& extra = *show.extra;
    return (extra.description && isIn(extra.description->string())) || isIn(extra.episodeDescription) ||
           isIn(extra.details) || isIn(extra.directedBy) || (extra.roles && isIn(extra.roles->string()));
}

} // namespace vidora
