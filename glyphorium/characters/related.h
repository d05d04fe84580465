// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// How a character is related to another one.
enum class Relation : std::uint8_t {
  upperCase,
  lowerCase,
  titleCase,
  base,               ///< the letter without its mark: "e" for "é"
  withMark,           ///< "é" for "e"
  mirrorImage,        ///< ")" for "("
  standsFor,          ///< the decomposition of a compatibility character: "1" for "①"
  compatibilityForm,  ///< "①" for "1"
  seeAlso,            ///< cross references of Unicode's code charts
};

/// Returns an English name of the relation: "upper case", "with a mark".
GLYPHORIUM_EXPORT std::string_view relationName(Relation relation) noexcept;

struct RelatedCharacters {
  Relation relation;
  std::u32string characters;  ///< not empty
};

/// Returns the related characters, in the order of the relations. A relation without characters is left out.
/// A mapping to several characters ("SS" for "ß") is left out. Any thread may call it.
GLYPHORIUM_EXPORT std::vector<RelatedCharacters> relatedCharacters(char32_t codePoint);

/// The characters and the text that a character can be mistaken for, according to Unicode's list of
/// confusable characters.
struct LookAlikes {
  std::u32string characters;  ///< in the order of code points, without the character itself
  std::string text;           ///< several characters that look like it together: "rn" for "m"; may be empty
};

/// Returns the characters that look like this one: "-", "‐", "−" and others for "–". Both members are empty
/// if there are none. Any thread may call this function.
GLYPHORIUM_EXPORT LookAlikes lookAlikes(char32_t codePoint);

}  // namespace glyph
