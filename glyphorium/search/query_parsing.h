// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/codes/code_parsing.h"

namespace glyph::search {

/// All that a query may be.
struct ParsedQuery {
  std::vector<std::string> groups;  ///< from "group:", as typed

  std::vector<ParsedCode> codes;             ///< all of the text, or parts of it that can be nothing else
  std::vector<std::uint32_t> likelyNumbers;  ///< the text is bare numbers, and hardly anything else
  std::vector<std::uint32_t> otherNumbers;   ///< the text is one, but may as well be a word: "face", "100"

  std::vector<std::uint32_t> characters;       ///< pasted, hence meant
  std::vector<std::uint32_t> besideWords;      ///< signs that are not on the keyboard, among words
  std::vector<std::uint32_t> otherCharacters;  ///< signs and letters that are more likely parts of a term

  std::string bareText;            ///< the text where it may be a bare HTML name
  std::string signs;               ///< the text as signKey() has it
  std::vector<std::string> words;  ///< folded
};

/// nullopt where the text asks for nothing.
std::optional<ParsedQuery> parseQuery(std::string_view text);

}  // namespace glyph::search
