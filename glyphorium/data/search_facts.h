// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

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
  CodePointIndex index;       ///< in `texts`
  std::string_view texts;     ///< those of a code point are separated by line feeds

  struct Entry {
    std::uint32_t codePoint;
    std::string_view texts;
  };
  std::size_t size() const { return index.size(); }
  Entry operator[](std::size_t position) const {
    return {index[position].codePoint, index.slice(texts, position)};
  }
};

extern const SearchFacts searchFactList[];
extern const std::size_t searchFactCount;

/// What the words of a language may stand for.
struct SearchSynonyms {
  std::string_view language;
  std::string_view lines;  ///< ascending; a word, and words of Unicode names separated by tabs
};

extern const SearchSynonyms searchSynonymList[];
extern const std::size_t searchSynonymCount;

}  // namespace glyph
