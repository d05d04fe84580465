// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace glyph {

enum class SearchFactKind : std::uint8_t {
  alias,         ///< formal aliases and abbreviations of Unicode's NameAliases
  htmlName,      ///< all names of the HTML Standard's references, without "&" and ";"
  annotation,    ///< CLDR: the spoken name, which may be empty, then keywords
  everydayName,  ///< what people call the character
  mostWanted,    ///< one text, the place among the characters that people mean most, in digits
};

/// Texts of code points, of one kind and language, in the library's read-only image.
struct SearchFacts {
  SearchFactKind kind;
  std::string_view language;  ///< empty where the texts are of no language
  std::string_view index;     ///< pairs of 32-bit integers, ascending: code point, offset in `texts`
  std::string_view texts;     ///< those of a code point separated by line feeds, up to the next one's offset

  struct Entry {
    std::uint32_t codePoint;
    std::string_view texts;
  };
  std::size_t size() const { return index.size() / 8; }
  Entry operator[](std::size_t position) const {
    std::uint32_t pair[2];
    std::memcpy(pair, index.data() + position * 8, sizeof pair);
    std::uint32_t end = static_cast<std::uint32_t>(texts.size());
    if (position + 1 < size()) std::memcpy(&end, index.data() + position * 8 + 12, sizeof end);
    return {pair[0], texts.substr(pair[1], end - pair[1])};
  }
};

extern const SearchFacts searchFactList[];
extern const std::size_t searchFactCount;

/// Lines of words separated by tabs, ascending: a word as people type it, and words of the Unicode names that
/// it may stand for.
extern const std::string_view searchSynonyms;

}  // namespace glyph
