// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glyph::search {

/// A code point or a named reference in a query.
struct CodeItem {
  std::uint32_t codePoint = 0;
  std::string htmlName;  ///< where not empty, this instead
};

/// All that a query may be.
struct ParsedQuery {
  std::vector<std::string> groups;  ///< from "group:", as typed

  std::vector<CodeItem> codes;               ///< the text is nothing but these forms
  std::vector<std::uint32_t> likelyNumbers;  ///< the text is a bare number, and hardly anything else
  std::vector<std::uint32_t> otherNumbers;   ///< likewise, but it may as well be a word: "face", "100"

  std::vector<std::uint32_t> characters;       ///< pasted, hence meant
  std::vector<std::uint32_t> besideWords;      ///< signs that are not on the keyboard, among words
  std::vector<std::uint32_t> otherCharacters;  ///< signs and letters that are more likely parts of a term

  std::string bareText;            ///< the text where it may be a bare HTML name
  std::string signs;               ///< the text as signKey() has it
  std::vector<std::string> words;  ///< folded
};

/// nullopt where the text asks for nothing.
std::optional<ParsedQuery> parseQuery(std::string_view text);

/// The code points and named references that the text consists of; empty where it holds anything else.
std::vector<CodeItem> parseCodes(std::string_view text);

}  // namespace glyph::search
