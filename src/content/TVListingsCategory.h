#pragma once

#include "content/ShowElement.h"

#include <QString>

#include <cstdint>

namespace vidora {

/// Category mask of a show: 17 bits, and four values that stand for lists.
using TVListingsCategory = std::uint32_t;

namespace category {
constexpr TVListingsCategory movies = 0x1;
constexpr TVListingsCategory series = 0x2;
constexpr TVListingsCategory documentaries = 0x4;
constexpr TVListingsCategory children = 0x8;
constexpr TVListingsCategory news = 0x10;
constexpr TVListingsCategory entertainment = 0x20;
constexpr TVListingsCategory music = 0x40;
constexpr TVListingsCategory sports = 0x80;
constexpr TVListingsCategory comedies = 0x100;
constexpr TVListingsCategory adventure = 0x200;
constexpr TVListingsCategory crime = 0x400;
constexpr TVListingsCategory westerns = 0x800;
constexpr TVListingsCategory dramas = 0x1000;
constexpr TVListingsCategory thrillers = 0x2000;
constexpr TVListingsCategory scienceFiction = 0x4000;
constexpr TVListingsCategory fantasy = 0x8000;
constexpr TVListingsCategory horrors = 0x10000;

constexpr TVListingsCategory film = 0x1ff01;         ///< movies and the nine genres
constexpr TVListingsCategory filmOrSeries = 0x1ff03; ///< the same and series
constexpr TVListingsCategory all = 0x1ffff;
constexpr TVListingsCategory evening = 0xffffffff; ///< -1
constexpr TVListingsCategory popular = 0xfffffffe; ///< -2
} // namespace category

/// English label of a mask, the key of its translation. The list values are tested first, then the bits in a fixed
/// order in which genres stand ahead of "Movies" and "TV Series".
QString textForCategory(std::int32_t category);

/// The general classifier: keywords of a dozen languages in the entry's details, title and description, a seed for some
/// source ids, then a resolution of contradictions. Pure; any thread.
TVListingsCategory categoryMaskForEntry(const TVEntry& entry);

/// The same on bare texts; an absent text is skipped like an empty one.
TVListingsCategory categoryMaskForTexts(const TVEntry::Text& sourceId, const TVEntry::Text& instantDetails1,
                                        const TVEntry::Text& identificator, const TVEntry::Text& instantDescription1);

/// Whether the first occurrence of the word, ignoring case and diacritics, stands as a word of its own.
bool entryTextHasWord(QStringView text, QStringView word);

/// The bits that the text of an XMLTV category element adds.
TVListingsCategory categoryFromText(QStringView text);

} // namespace vidora
