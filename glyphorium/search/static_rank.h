// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

/// The static rank: how likely a character is meant, whatever the query is. Of characters that match a query
/// equally well, people nearly always mean a common sign and hardly ever its combining, compatibility or
/// private-use relative. The order of code points does not tell these apart: "arrow" would begin with U+02C2.
namespace glyph::search {

/// Characters for private use have a prior of at least this, all others a smaller one.
inline constexpr std::uint8_t privateUsePrior = 34;

struct RankedDoc {
  std::uint32_t entity;     ///< position of the character's first entity in the list
  std::uint32_t codePoint;  ///< Index::noCodePoint if the hex code is not a code point
  std::uint8_t prior;       ///< what the ranking adds to its cost; smaller is likelier
};
struct GroupMembers {
  std::string_view name;
  std::vector<std::uint32_t> entities;  ///< the first entity of each member's hex code
};
struct RankedDocs {
  std::vector<RankedDoc> docs;  ///< the likeliest first
  std::vector<GroupMembers> groups;
};

/// The characters of a list, one per hex code, and its groups. The names of groups are views of the list.
RankedDocs rankDocs(std::span<const Entity> entities);

}  // namespace glyph::search
