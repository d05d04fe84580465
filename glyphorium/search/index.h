// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/search/text_list.h"

namespace glyph::search {

/// The source of a phrase.
enum class PhraseKind : std::uint8_t {
  name,
  replacedName,  ///< the name of the Unicode table, if the catalog shows a better one
  alias,
  htmlName,
  searchTerm,
  everydayName,
  textToSpeechName,
  keyword,  ///< many characters share one, so it says a little less than a name
  note,
};

/// A text that belongs to a character.
struct Phrase {
  std::uint32_t doc;
  PhraseKind kind;
  std::uint8_t language;   ///< position in Index::languages; 0: in no language
  std::uint8_t words;      ///< number of its words, at most 255
  std::uint8_t coreWords;  ///< of these, the ones that are not stop words; all of them if there are no others
};

struct CodePointDoc {
  std::uint32_t codePoint;
  std::uint32_t doc;
};

struct Group {
  std::string_view name;
  std::string_view words;  ///< of the name, folded, with a space between them
  std::span<const std::uint32_t> docs;

  bool hasWordWithPrefix(std::string_view prefix) const;
};

/// The inverted index: views of the parts of one image (see index_image.h). Each character is a document,
/// "doc" for short. Docs are numbered in the order of their static rank (see static_rank.h), so of two equal
/// matches the one with the lower number is the better one.
struct Index {
  // One element per doc:
  std::span<const std::uint32_t> docEntity;     ///< position of its first entity in the list
  std::span<const std::uint32_t> docCodePoint;  ///< noCodePoint if its hex code is not a code point
  std::span<const std::uint8_t> docPrior;       ///< what the ranking adds to its cost, see static_rank.h
  TextList names;

  std::span<const CodePointDoc> byCodePoint;  ///< ascending

  std::span<const Phrase> phrases;

  TextList words;  ///< the dictionary: all words of all phrases, folded, ascending
  /// Position of each word's first posting in `postings`, then the size of `postings`.
  std::span<const std::uint32_t> postingStart;
  /// A posting is (number of the phrase) << 8 | (position of the word in the phrase).
  std::span<const std::uint32_t> postings;

  TextList signs;                              ///< sign keys (see signKey()), ascending
  std::span<const std::uint32_t> signPhrases;  ///< the phrase of each sign key
  TextList htmlNames;                          ///< in their exact spelling, ascending
  std::span<const std::uint32_t> htmlDocs;     ///< the doc of each HTML name

  TextList groupNames;
  TextList groupWords;                           ///< Group::words
  std::span<const std::uint32_t> groupDocStart;  ///< of each group in `groupDocs`, then the size of that
  std::span<const std::uint32_t> groupDocs;

  /// Languages of the phrases (BCP 47). The first is empty, the second "en". Sets of languages are bit masks:
  /// bit i stands for languages[i].
  TextList languages;

  static constexpr std::uint32_t noCodePoint = 0xFFFFFFFF;
  static constexpr std::uint32_t noDoc = 0xFFFFFFFF;

  std::size_t docCount() const { return docEntity.size(); }
  std::span<const std::uint32_t> postingsOf(TextRange range) const {
    return postings.subspan(postingStart[range.first], postingStart[range.last] - postingStart[range.first]);
  }
  /// Whether the language is in the bit mask.
  bool hasLanguage(std::string_view language, std::uint32_t languageBits) const;

  std::uint32_t groupCount() const { return groupNames.size(); }
  Group group(std::uint32_t i) const {
    return {groupNames[i], groupWords[i],
            groupDocs.subspan(groupDocStart[i], groupDocStart[i + 1] - groupDocStart[i])};
  }

  /// noDoc if there is none.
  std::uint32_t docOfCodePoint(std::uint32_t codePoint) const;
  std::uint32_t docOfHtmlName(std::string_view name) const;
};

}  // namespace glyph::search
