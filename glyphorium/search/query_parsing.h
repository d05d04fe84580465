// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/search/notations.h"

namespace glyph::search {

/// The possible meanings of a query.
struct ParsedQuery {
  std::vector<std::string> groups;  ///< the names after "group:", as typed

  /// Codes that the user certainly means. The text consists of codes, or contains codes with a prefix.
  std::vector<ParsedCode> codes;
  /// The text may consist of numbers without a prefix that are probably not words: "2192". These are their
  /// code points.
  std::vector<std::uint32_t> likelyNumbers;
  /// The text may be a number that is less likely a code point: "face" may be a word, and "65" is short.
  /// These are its code points.
  std::vector<std::uint32_t> otherNumbers;

  /// Characters for which the text is a notation in another program, or a prefix of a notation: see
  /// notations.h.
  NotationsFound notations;

  /// Characters that the user certainly means. The text is a single character or has no Latin letters.
  std::vector<std::uint32_t> characters;
  /// Characters next to Latin words, if they are neither Latin letters nor on the keyboard: the arrow in "→
  /// double".
  std::vector<std::uint32_t> besideWords;
  /// Other signs and letters of the text. The user may look for one of these characters, but they are more
  /// likely parts of words.
  std::vector<std::uint32_t> otherCharacters;

  /// The text without groups, without codes beside words, and without blanks at both ends. May be an HTML
  /// name.
  std::string bareText;
  std::string signs;               ///< signKey() of bareText
  std::vector<std::string> words;  ///< the words of bareText, folded
};

/// Returns the possible meanings of a UTF-8 text. Returns nullopt if the text is empty.
std::optional<ParsedQuery> parseQuery(std::string_view text);

/// Returns true if the text contains "group:NAME".
bool namesGroup(std::string_view text);

}  // namespace glyph::search
