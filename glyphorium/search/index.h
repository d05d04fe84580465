// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "glyphorium/search/text_list.h"

namespace glyph::search {

/// Where a phrase comes from.
enum class PhraseKind : std::uint8_t {
  name,
  replacedName,  ///< the name in the Unicode table, if the catalog shows a better name instead
  alias,
  informalName,  ///< an informal alias in the Unicode Standard's list of names
  htmlName,
  searchTerm,
  everydayName,
  textToSpeechName,
  comment,  ///< a comment in the Unicode Standard's list of names
  keyword,  ///< weaker evidence than a name, because many characters share a keyword
  note,
};

/// What the index knows about one text of a character.
struct Phrase {
  std::uint32_t doc : 24;
  PhraseKind kind : 8;
  std::uint8_t language;  ///< position in Index::languages; 0 if the text is in no particular language
  std::uint8_t words;     ///< the number of words, at most 255
  /// The number of words that are not stop words, at most 255. If all words are stop words, the same as
  /// `words`.
  std::uint8_t coreWords;
  /// The position of the noun that the other words describe: of the last word, or of the first word in
  /// languages in which nouns come first. Stop words and what follows the first function word do not count.
  std::uint8_t head;
};
static_assert(sizeof(Phrase) == 8);

struct CodePointDoc {
  std::uint32_t codePoint;
  std::uint32_t doc;
};

struct Group {
  std::string_view name;
  std::string_view words;  ///< the folded words of the name, separated by spaces
  std::span<const std::uint32_t> docs;

  /// Returns true if a word of the group's name begins with `prefix`, which must be folded.
  bool hasWordWithPrefix(std::string_view prefix) const;
};

/// The inverted index. It consists of views of the parts of one image, which must outlive the index: see
/// index_image.h. Each character is a document, "doc" for short. Docs are numbered in the order of their
/// static rank (see static_rank.h), so a lower doc number is better if two docs match equally well.
struct Index {
  // The following four lists have one element per doc and are indexed by doc number.

  /// The position of the doc's first entity in the list of entities.
  std::span<const std::uint32_t> docEntity;
  std::span<const std::uint32_t> docCodePoint;  ///< noCodePoint if the doc's hex code is not a code point
  std::span<const std::uint8_t> docPrior;       ///< added to the cost of each match: see static_rank.h
  TextList names;

  std::span<const CodePointDoc> byCodePoint;  ///< in ascending order of code points

  std::span<const Phrase> phrases;  ///< in ascending order of docs
  /// For each doc, the number of its first phrase. The last element is the size of `phrases`.
  std::span<const std::uint32_t> phraseStart;

  TextList words;  ///< the dictionary: all words of all phrases, folded, in ascending order
  /// For each word, the position of its first posting in `postings`. The last element is the size of
  /// `postings`.
  std::span<const std::uint32_t> postingStart;
  /// A posting is (number of the phrase) << 8 | (position of the word in the phrase).
  std::span<const std::uint32_t> postings;

  TextList signs;                              ///< sign keys (see signKey()) in ascending order
  std::span<const std::uint32_t> signPhrases;  ///< for each sign key, the number of its phrase
  TextList htmlNames;                          ///< in their original spelling, not folded, in ascending order
  std::span<const std::uint32_t> htmlDocs;     ///< for each HTML name, the number of its doc

  TextList groupNames;
  TextList groupWords;  ///< for each group, Group::words
  /// For each group, the position of its first doc in `groupDocs`. The last element is the size of
  /// `groupDocs`.
  std::span<const std::uint32_t> groupDocStart;
  std::span<const std::uint32_t> groupDocs;

  /// The languages of the phrases, as BCP 47 tags. The first one is empty and stands for "no particular
  /// language". The second one is "en". There are at most 32, because a set of languages is a bit mask: bit i
  /// stands for languages[i].
  TextList languages;

  static constexpr std::uint32_t noCodePoint = 0xFFFFFFFF;
  static constexpr std::uint32_t noDoc = 0xFFFFFFFF;

  std::size_t docCount() const { return docEntity.size(); }
  /// Returns the postings of all words in the range.
  std::span<const std::uint32_t> postingsOf(TextRange range) const {
    return postings.subspan(postingStart[range.first], postingStart[range.last] - postingStart[range.first]);
  }
  /// Returns true if the language is in `languages` and its bit in the bit mask is set.
  bool hasLanguage(std::string_view language, std::uint32_t languageBits) const;

  std::uint32_t groupCount() const { return groupNames.size(); }
  Group group(std::uint32_t i) const {
    return {groupNames[i], groupWords[i],
            groupDocs.subspan(groupDocStart[i], groupDocStart[i + 1] - groupDocStart[i])};
  }

  /// Returns the doc of the code point, or noDoc if the code point is not in the index.
  std::uint32_t docOfCodePoint(std::uint32_t codePoint) const;
  /// Returns the doc that has this HTML name ("rarr"), or noDoc if there is no such doc. Letter case counts.
  std::uint32_t docOfHtmlName(std::string_view name) const;
};

}  // namespace glyph::search
