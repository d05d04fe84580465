// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

/// Facts from the Unicode Character Database 17.0 about all code points, also those that are not in the
/// catalog. The data is in the library's read-only image, so nothing is built on first use.
namespace glyph {

enum class CharacterStatus : std::uint8_t {
  assigned,
  control,  ///< general category Cc; has aliases, but no name
  privateUse,
  surrogate,     ///< one half of a UTF-16 surrogate pair; not a character
  noncharacter,  ///< never assigned: U+FDD0 to U+FDEF and the last two code points of each plane
  unassigned,
  none,  ///< the number is above 10FFFF
};

GLYPHORIUM_EXPORT CharacterStatus characterStatus(char32_t codePoint) noexcept;

/// Facts about a code point. The texts of type std::string_view are constants of the library. A text is empty
/// if the code point does not have the property.
struct CharacterFacts {
  char32_t codePoint = 0;
  CharacterStatus status = CharacterStatus::none;
  std::string name;                     ///< see characterName()
  std::string label;                    ///< see characterNameOrLabel()
  std::string_view version;             ///< the version of Unicode that added it: "1.1", "17.0"
  std::string_view category;            ///< general category, "Lu"; "Cn" if unassigned
  std::string_view block;               ///< "Latin-1 Supplement"; empty outside all blocks
  std::string_view script;              ///< "Latin", "Common"
  std::string_view bidirectionalClass;  ///< "L", "AL"
  std::string_view eastAsianWidth;      ///< "N", "Na", "W", "F", "H", "A"
  std::optional<int> combiningClass;    ///< nullopt if unassigned, and for some marks of Unicode 17.0
  std::string_view decompositionKind;   ///< "canonical", "compat", "fraction" ...
  std::u32string decomposition;         ///< the decomposition mapping, not applied recursively
  std::u32string upperCase;             ///< full mapping, the same for all languages; empty if unchanged
  std::u32string lowerCase;
  std::u32string titleCase;
  std::string_view numericValue;           ///< "1/2", "1000"
  std::vector<std::string> formalAliases;  ///< corrections, names of control characters, abbreviations
  std::vector<std::string> otherNames;     ///< informal aliases of the code charts
  std::vector<std::string> comments;       ///< remarks of the code charts
  std::string hanDefinition;               ///< English meaning of an ideograph
  std::string mandarin;                    ///< readings, separated by spaces; also in the next three
  std::string japaneseOn;
  std::string japaneseKun;
  std::string korean;
};

/// Returns all facts about the code point. If the number is above 10FFFF, all texts are empty. Any thread may
/// call it.
GLYPHORIUM_EXPORT CharacterFacts characterFacts(char32_t codePoint);

/// Returns the general category, without the other facts: "Lu". Any thread may call it.
GLYPHORIUM_EXPORT std::string_view characterCategory(char32_t codePoint) noexcept;

/// A range of code points, both ends included.
struct CodePointRange {
  char32_t first;
  char32_t last;
};

/// The properties that charactersWith() can search for.
enum class CharacterProperty : std::uint8_t { block, script, category, version };

/// Returns the assigned code points whose property has this value, as ranges in ascending order. The
/// comparison ignores letter case, spaces, hyphens and underscores: "arrows", "Latin-1 supplement". A
/// category is given by its short value ("Lu"), by the first letter of several ("L"), or by a name that
/// categoryName() returns. A version is "15.1", or "15", which means 15.0. Empty if no code point has the
/// value. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<CodePointRange> charactersWith(CharacterProperty property,
                                                             std::string_view value);

/// Returns all values of a property: the names of blocks and scripts, or the short forms of categories and
/// versions. Blocks are in the order of code points. The other values are in ascending order. Any thread may
/// call it.
GLYPHORIUM_EXPORT std::vector<std::string_view> valuesOf(CharacterProperty property);

}  // namespace glyph
