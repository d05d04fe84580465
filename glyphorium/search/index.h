// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "glyphorium/search/text_list.h"

namespace glyph::search {

/// The kinds of texts that a character has. The index calls each text a phrase.
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
  meaning,  ///< one English meaning of a Han character
  reading,  ///< one reading of a Han character in Latin letters or Hangul
};

/// A phrase: what the index stores about one text of a character, such as its name. The text itself is not
/// stored.
struct Phrase {
  std::uint32_t doc : 24;
  PhraseKind kind : 8;
  std::uint8_t language;  ///< position in Index::languages; 0 if the text is in no particular language
  std::uint8_t words;     ///< the number of words, at most 255
  /// The number of words that are not stop words, at most 255. If all words are stop words, it equals
  /// `words`.
  std::uint8_t coreWords;
  /// The position of the noun that the other words describe: "arrow" in "black arrow with hook". This is the
  /// last word, or the first word in languages in which nouns come first. Stop words are skipped. So are the
  /// first function word ("with") and all words after it.
  std::uint8_t head;
};
static_assert(sizeof(Phrase) == 8);

/// A phrase without its doc. Most texts are short, so many phrases have the same shape, and the index stores
/// each shape once. Shape::doc is 0, or has another meaning: see Index::postings.
using Shape = Phrase;

/// One occurrence of a word in a text.
struct Occurrence {
  Phrase phrase;
  std::uint32_t text;  ///< different for each text of the doc
  std::uint8_t position;
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
  TextList names;                               ///< empty if nameOf is set

  /// The docs that have a code point, in ascending order of their code points. If this is empty, the docs
  /// themselves are sorted by prior and then by code point.
  std::span<const std::uint32_t> byCodePoint;

  std::span<const Shape> shapes;
  /// For each text, (doc) << 12 | (number of the shape), in ascending order of docs. If this is empty, the
  /// postings contain the numbers of the shapes.
  std::span<const std::uint32_t> phrases;
  /// For each doc, the number of its first phrase. The last element is the size of `phrases`.
  std::span<const std::uint32_t> phraseStart;

  TextList words;  ///< the dictionary: all words of all phrases, folded, in ascending order
  /// For each word, the position of its first posting in `postings`. The last element is the size of
  /// `postings`.
  std::span<const std::uint32_t> postingStart;
  /// A posting is one occurrence of a word in a text, as a number: (number of the phrase) << 8 | (position of
  /// the word in the phrase). If `phrases` is empty, the posting is (doc) << 16 | (number of the shape). Then
  /// Phrase::doc of the shape is (number of the text in the doc) << 8 | (position of the word in the text).
  std::span<const std::uint32_t> postings;

  TextList signs;                               ///< sign keys (see signKey()) in ascending order
  std::span<const std::uint32_t> signPostings;  ///< for each sign key, a posting with an unused position
  TextList htmlNames;                       ///< in their original spelling, not folded, in ascending order
  std::span<const std::uint32_t> htmlDocs;  ///< for each HTML name, the number of its doc

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

  // The following members are not part of an image.

  /// If `names` is empty, this function returns the shown name of the entity at a position.
  std::string (*nameOf)(std::uint32_t entity) = nullptr;
  /// A second index that is searched together with this one. The weight of a word depends on the texts of
  /// both, so that the costs of their results are comparable.
  const Index* weighedWith = nullptr;

  static constexpr std::uint32_t noCodePoint = 0xFFFFFFFF;
  static constexpr std::uint32_t noDoc = 0xFFFFFFFF;

  std::size_t docCount() const { return docEntity.size(); }
  std::string nameOfDoc(std::uint32_t doc) const {
    return nameOf ? nameOf(docEntity[doc]) : std::string(names[doc]);
  }
  Occurrence occurrence(std::uint32_t posting) const {
    if (!phrases.empty()) {
      const std::uint32_t number = posting >> 8;
      Phrase phrase = shapes[phrases[number] & 0xFFF];
      phrase.doc = (phrases[number] >> 12) & 0xFFFFFF;
      return {phrase, number, static_cast<std::uint8_t>(posting)};
    }
    Phrase phrase = shapes[posting & 0xFFFF];
    const std::uint32_t place = phrase.doc;
    phrase.doc = static_cast<std::uint16_t>(posting >> 16);
    return {phrase, place >> 8, static_cast<std::uint8_t>(place)};
  }
  std::uint32_t docOfPosting(std::uint32_t posting) const {
    return phrases.empty() ? posting >> 16 : phrases[posting >> 8] >> 12;
  }
  /// Returns the smallest number that a posting of this doc or of a later doc may have.
  std::uint64_t firstPosting(std::uint32_t doc) const {
    return phrases.empty() ? std::uint64_t{doc} << 16 : std::uint64_t{phraseStart[doc]} << 8;
  }
  /// Returns the postings of all words in the range.
  std::span<const std::uint32_t> postingsOf(TextRange range) const {
    return postings.subspan(postingStart[range.first], postingStart[range.last] - postingStart[range.first]);
  }
  /// Returns true if the language is in `languages` and its bit in `languageBits` is set.
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
