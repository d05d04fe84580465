// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

/// Data of the search that the group tables and the enrichment table lack. It is in the library's read-only
/// image. The generator creates the data from the source files in search/, from groups.tsv, and from the file
/// of HTML references.
namespace glyph {

enum class SearchFactKind : std::uint8_t {
  htmlName,      ///< all names of the HTML Standard's references, without "&" and ";"
  everydayName,  ///< names that people use for the character
  /// A single text: the position of the character in the list of most wanted characters, as a decimal number
  /// that starts at 0.
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
  /// Returns the texts of the code point. Empty if the code point has no texts.
  std::string_view textsOf(std::uint32_t codePoint) const {
    const auto position = index.find(codePoint);
    return position ? index.slice(texts, *position) : std::string_view();
  }
};

extern const SearchFacts searchFactList[];
extern const std::size_t searchFactCount;

/// The data that the search has about a language. Each text consists of lines, and each line ends with a line
/// feed. A line contains folded words or letters (see WordReader), separated by tabs. The languages are in
/// the order in which a host shows the notes of a character.
struct SearchLanguage {
  std::string_view code;  ///< BCP 47
  bool headFirst;         ///< whether a noun precedes the words that describe it
  /// Each line has a word that people use, then the words of Unicode names that it may stand for. The lines
  /// are in ascending order.
  std::string_view synonyms;
  /// Words that join other words ("with"), in ascending order. If a query finds nothing, the search leaves
  /// out these words.
  std::string_view functionWords;
  /// Each line is a rule: an ending of plurals, then the endings that the singular may have instead. The
  /// search tries the rules in their order. A rule may have the same ending twice ("ss", "ss"): words with
  /// this ending ("cross") are not plurals. After such a rule, the search tries no more rules.
  std::string_view plurals;
  std::string_view linkingLetters;  ///< each line has letters that may join the parts of a compound word
  /// Each line has letters as people type them, then the folded letters that they stand for.
  std::string_view spellings;
  /// Each line has letters that people may type by mistake, then the letters that sound the same.
  std::string_view sounds;
};

extern const std::span<const SearchLanguage> searchLanguages;

/// The stop words of all languages, one per line, in ascending order. A stop word has no meaning of its own
/// ("the"), or only says that the query is about a character ("sign", "symbol"). A result need not match the
/// stop words of a query.
extern const std::string_view searchStopWords;

/// Words for the appearance of marks on letters. Each line has the name of a mark ("diaeresis"), a tab, and
/// words that describe how the mark looks ("dots"), separated by spaces. The lines are in ascending order.
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
