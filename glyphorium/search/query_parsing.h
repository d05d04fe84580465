// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/codes/code_parsing.h"

namespace glyph::search {

/// The meanings that a query may have.
struct ParsedQuery {
  std::vector<std::string> groups;  ///< behind "group:", as typed

  std::vector<ParsedCode> codes;             ///< certain: the text is codes, or contains some with a prefix
  std::vector<std::uint32_t> likelyNumbers;  ///< the text is numbers without a prefix, and hardly words
  std::vector<std::uint32_t> otherNumbers;   ///< the text is a number, but may as well be a word: "face"

  std::vector<std::uint32_t> characters;       ///< the text is these characters: they are meant
  std::vector<std::uint32_t> besideWords;      ///< signs among words that are not on the keyboard
  std::vector<std::uint32_t> otherCharacters;  ///< signs and letters that are rather parts of a term

  std::string bareText;            ///< the text without groups, codes and spaces at the ends; an HTML name?
  std::string signs;               ///< signKey() of that text
  std::vector<std::string> words;  ///< of that text, folded
};

/// The meanings of a UTF-8 text; nullopt for an empty text.
std::optional<ParsedQuery> parseQuery(std::string_view text);

}  // namespace glyph::search
