// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

/// The static rank says how likely it is that people want a character, whatever the query is. It is an order
/// of all characters, first of all by their priors. A prior is a number that is added to the cost of each
/// match of the character, so a low prior means that people want the character often. If several characters
/// match a query equally well, people nearly always mean a common sign. They hardly ever mean a similar
/// combining, compatibility or private-use character. The order of code points does not show this difference:
/// the results for "arrow" would begin with U+02C2.
namespace glyph::search {

/// The highest prior of the characters that people want most.
inline constexpr std::uint8_t mostWantedPrior = 6;

/// The lowest prior of the letters of scripts, except for the most wanted letters and those of phonetic
/// alphabets.
inline constexpr std::uint8_t letterPrior = 18;

/// The lowest prior of private-use characters. All other characters of the catalog have a lower prior.
inline constexpr std::uint8_t privateUsePrior = 34;

/// The lowest prior of the supplement's rare scripts and ideographs. They come after all characters of the
/// catalog, even after private-use characters.
inline constexpr std::uint8_t behindPrivateUsePrior = 64;

/// No prior is higher.
inline constexpr std::uint8_t mostPrior = 80;

struct RankedDoc {
  std::uint32_t entity;     ///< position of the character's first entity in the list
  std::uint32_t codePoint;  ///< Index::noCodePoint if the hex code is not a code point
  std::uint8_t prior;       ///< added to the cost of a match; a lower prior means a likelier character
};
struct GroupMembers {
  std::string_view name;
  std::vector<std::uint32_t>
      entities;  ///< for each member, the position of the first entity with its hex code
};
struct RankedDocs {
  std::vector<RankedDoc> docs;  ///< the most likely character is first
  std::vector<GroupMembers> groups;
};

/// Returns the characters of a list, one per hex code, and the groups of the list. The names of the groups
/// are views of the list, so the list must outlive the result.
RankedDocs rankDocs(std::span<const Entity> entities);

}  // namespace glyph::search
