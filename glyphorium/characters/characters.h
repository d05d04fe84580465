// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

/// What the Unicode Character Database 17.0 says about every code point, whether the catalog contains it or
/// not. The data is in the library's read-only image. Nothing is built on first use.
namespace glyph {

enum class CharacterStatus : std::uint8_t {
  assigned,
  control,  ///< general category Cc; it has no name, but aliases
  privateUse,
  surrogate,     ///< a half of a UTF-16 pair; it is no character
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
  std::string_view version;             ///< of Unicode, in which the code point was assigned: "1.1", "17.0"
  std::string_view category;            ///< general category, "Lu"; "Cn" if unassigned
  std::string_view block;               ///< "Latin-1 Supplement"; empty outside all blocks
  std::string_view script;              ///< "Latin", "Common"
  std::string_view bidirectionalClass;  ///< "L", "AL"
  std::string_view eastAsianWidth;      ///< "N", "Na", "W", "F", "H", "A"
  std::optional<int> combiningClass;    ///< nullopt if unassigned, and for some marks of Unicode 17.0
  std::string_view decompositionKind;   ///< "canonical", "compat", "fraction" ...
  std::u32string decomposition;         ///< the mapping of one step
  std::u32string upperCase;             ///< full mapping that depends on no language; empty if unchanged
  std::u32string lowerCase;
  std::u32string titleCase;
  std::string_view numericValue;           ///< "1/2", "1000"
  std::vector<std::string> formalAliases;  ///< corrections, names of controls, abbreviations
  std::vector<std::string> otherNames;     ///< informal aliases of the code charts
  std::vector<std::string> comments;       ///< remarks of the code charts
  std::string hanDefinition;               ///< English meaning of an ideograph
  std::string mandarin;                    ///< readings; blanks separate several
  std::string japaneseOn;
  std::string japaneseKun;
  std::string korean;
};

/// Returns what is known about the code point. If the number is above 10FFFF, all texts are empty. Any thread
/// may call it.
GLYPHORIUM_EXPORT CharacterFacts characterFacts(char32_t codePoint);

/// Returns the general category, without the other facts: "Lu". Any thread may call it.
GLYPHORIUM_EXPORT std::string_view characterCategory(char32_t codePoint) noexcept;

/// A range of code points, both ends included.
struct CodePointRange {
  char32_t first;
  char32_t last;
};

/// The kinds of sets that charactersWith() knows.
enum class CharacterProperty : std::uint8_t { block, script, category, version };

/// Returns the assigned code points that have the value, as ranges in ascending order. Letter case, blanks,
/// hyphens and low lines do not count: "arrows", "Latin-1 supplement". For a category, "L" means all
/// categories that begin with "L", and the long names of categoryName() count. A version is "15.1" or "15",
/// which means 15.0. A block gives all its code points that are assigned. Empty if no code point has the
/// value. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<CodePointRange> charactersWith(CharacterProperty property,
                                                             std::string_view value);

/// Returns all values of a property: of blocks and scripts the names, of the others the short forms. Blocks
/// are in the order of code points, the others in ascending order. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<std::string_view> valuesOf(CharacterProperty property);

}  // namespace glyph
