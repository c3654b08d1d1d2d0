#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vidora::region {

enum class Genre : std::uint8_t
{
    Film,
    Series,
    Documentary,
    Children,
    News,
    Entertainment,
    Music,
    Sports
};
inline constexpr int genreCount = 8;

/// The words of one language out of which shows are made up. Lists are written with "|" between their items. No title
/// holds a comma, a bracket, a quote or a markup character: providers give such signs meanings of their own.
struct Vocabulary
{
    std::string_view language, zone;
    std::array<std::string_view, genreCount> titles;     ///< by genre
    std::array<std::string_view, genreCount> genreWords; ///< by genre, as a feed writes them
    std::array<std::string_view, genreCount> synopses;   ///< by genre
    std::string_view closings;                           ///< second sentences of a description
    std::string_view episodes;                           ///< titles of episodes
    std::string_view firstNames, lastNames, countries;
    std::string_view filmKinds;      ///< kinds of film, put in front of or behind the genre word
    std::string_view cast, director; ///< labels ahead of the credits in a description
    bool lastNameFirst = false;
};

/// The vocabulary of a language; that of English for an unknown one.
const Vocabulary& vocabulary(std::string_view language);
/// The items of a list of the vocabulary.
std::vector<std::string_view> items(std::string_view list);

} // namespace vidora::region
