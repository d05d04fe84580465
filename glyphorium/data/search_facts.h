// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

/// Data of the search that is not in the tables. The data is in the library's read-only image. The generator
/// creates the data from the source files in search/, from groups.tsv, and from the file of HTML references.
namespace glyph {

enum class SearchFactKind : std::uint8_t {
  htmlName,      ///< all names of the HTML Standard's references, without "&" and ";"
  everydayName,  ///< names that people use for the character
  /// One text: the character's position in the list of most wanted characters, as a decimal number, counted
  /// from 0.
  mostWanted,
};

/// The texts of one kind and one language, for many code points.
struct SearchFacts {
  SearchFactKind kind;
  std::string_view language;  ///< BCP 47; empty for texts in no language
  CodePointIndex index;       ///< the offset in `texts` at which the texts of each code point begin
  std::string_view texts;     ///< line feeds separate the texts of one code point

  struct Entry {
    std::uint32_t codePoint;
    std::string_view texts;
  };
  std::size_t size() const { return index.size(); }
  Entry operator[](std::size_t position) const {
    return {index[position].codePoint, index.slice(texts, position)};
  }
  /// Returns the texts of the code point. Empty if it has none.
  std::string_view textsOf(std::uint32_t codePoint) const {
    const auto position = index.find(codePoint);
    return position ? index.slice(texts, *position) : std::string_view();
  }
};

extern const SearchFacts searchFactList[];
extern const std::size_t searchFactCount;

/// The data that the search has about a language. Each text consists of lines, and each line ends with a line
/// feed. A line contains folded words or letters (see WordReader), separated by tabs. The languages have the
/// same order as the notes on a card.
struct SearchLanguage {
  std::string_view code;  ///< BCP 47
  bool headFirst;         ///< whether a noun precedes the words that describe it
  /// Each line has a word, then the words of Unicode names that it may mean. The lines are in ascending
  /// order.
  std::string_view synonyms;
  /// Words that join other words ("with"), in ascending order. If a query finds nothing, the search leaves
  /// out these words.
  std::string_view functionWords;
  /// Each line is a rule: an ending of plurals, then the endings that the singular may have. The search tries
  /// the rules in order. A rule that keeps the ending is the last one that it tries.
  std::string_view plurals;
  std::string_view linkingLetters;  ///< each line has letters that may join the parts of a compound word
  /// Each line has letters as people type them, then the folded letters that they stand for.
  std::string_view spellings;
  /// Each line has letters that people may type by mistake, then the letters that sound the same.
  std::string_view sounds;
};

extern const std::span<const SearchLanguage> searchLanguages;

/// The stop words of all languages, one per line, in ascending order. A stop word only says that the query is
/// about a character ("sign", "symbol"), or has no meaning of its own. Stop words in a query need not match.
extern const std::string_view searchStopWords;

/// How marks on letters look. Each line has a word from letter names ("diaeresis"), a tab, and the words for
/// its look, separated by spaces. The lines are in ascending order.
extern const std::string_view searchMarks;

/// The kind of characters in a group, which the ranking of the search uses.
enum class GroupKind : std::uint8_t {
  commonSigns,
  otherSigns,
  phonetic,
  script,
  modifiers,
  lookalikes,  ///< compatibility characters and combining marks
  privateUse,
  selection,  ///< characters of other groups
};

struct GroupWithKind {
  std::string_view group;
  GroupKind kind;
};

/// The groups of all group tables, in ascending order of their names.
extern const std::span<const GroupWithKind> groupKinds;

}  // namespace glyph
