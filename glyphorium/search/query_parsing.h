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
  /// Code points of a text that consists of numbers without a prefix and is probably not words.
  std::vector<std::uint32_t> likelyNumbers;
  /// Code points of a text that is a number but may also be a word: "face".
  std::vector<std::uint32_t> otherNumbers;

  /// Characters for which the text is a notation in another program, or a prefix of a notation: see
  /// notations.h.
  NotationsFound notations;

  /// Characters that the user certainly means. The text is a single character or has no Latin letters.
  std::vector<std::uint32_t> characters;
  /// Characters beside Latin words that are neither Latin letters nor on the keyboard.
  std::vector<std::uint32_t> besideWords;
  /// Signs and letters that are more likely a part of a search word than the character that the user looks
  /// for.
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
