// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

/// What the search knows beyond the tables, in the library's read-only image. The generator makes it of the
/// sources below search/.
namespace glyph {

enum class SearchFactKind : std::uint8_t {
  alias,         ///< formal aliases and abbreviations of Unicode's NameAliases
  htmlName,      ///< all names of the HTML Standard's references, without "&" and ";"
  annotation,    ///< CLDR's text-to-speech name, which may be empty, then its keywords
  everydayName,  ///< what people call the character
  mostWanted,    ///< one text: the position among the characters that people mean most, from 0, in digits
};

/// Texts of code points, of one kind and language.
struct SearchFacts {
  SearchFactKind kind;
  std::string_view language;  ///< BCP 47; empty for texts in no language
  CodePointIndex index;       ///< in `texts`
  std::string_view texts;     ///< line feeds separate the texts of a code point

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

/// What the search knows of a language. The texts are lines, each with a line feed at its end, of folded
/// words or letters (see WordReader) that tabs separate. The order of the languages is that of notes on a
/// card.
struct SearchLanguage {
  std::string_view code;      ///< BCP 47
  bool headFirst;             ///< whether the noun stands before the words that describe it
  std::string_view synonyms;  ///< ascending; a word, then words of Unicode names that it may stand for
  /// Ascending; words that join others ("with"). They are left out of a query that finds nothing.
  std::string_view functionWords;
  /// An ending of plurals, then the endings that its singulars may have. Rules are tried in their order; one
  /// whose ending stays as it is ends the rules.
  std::string_view plurals;
  std::string_view linkingLetters;  ///< letters that may join the parts of a compound word
  std::string_view spellings;       ///< letters as people type them, then the folded letter that they mean
};

extern const std::span<const SearchLanguage> searchLanguages;

/// The words of all languages that only say that a character is meant ("sign", "symbol"), or say nothing at
/// all. Lines, ascending. In a query they need not match.
extern const std::string_view searchStopWords;

/// What the characters of a group are. The ranking of the search depends on it.
enum class GroupKind : std::uint8_t {
  commonSigns,
  otherSigns,
  phonetic,
  script,
  modifiers,
  lookalikes,  ///< compatibility characters and combining marks
  privateUse,
  selection,  ///< from other groups
};

struct GroupWithKind {
  std::string_view group;
  GroupKind kind;
};

/// The groups of all group tables, ascending by name.
extern const std::span<const GroupWithKind> groupKinds;

}  // namespace glyph
