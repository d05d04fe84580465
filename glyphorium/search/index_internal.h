// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/catalog/entity/records.h"

namespace glyph::search {

/// What a phrase is to its character.
enum class PhraseKind : std::uint8_t {
  name,
  replacedName,  ///< the table's name where a better name is shown
  alias,
  htmlName,
  searchTerm,
  everydayName,
  spokenName,
  keyword,  ///< shared by many characters, hence a little weaker than what names one
  note,
};

/// A text of a character: some words in order.
struct Phrase {
  std::uint32_t doc;
  PhraseKind kind;
  std::uint8_t language;   ///< index in Index::languages; 0: of no language
  std::uint8_t words;      ///< at most 255
  std::uint8_t coreWords;  ///< those that are no fillers
};

/// A range of the dictionary, [first, last).
struct WordRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  bool empty() const { return first == last; }
};

struct Group {
  std::string name;
  std::vector<std::string> words;  ///< of the name, folded
  std::vector<std::uint32_t> docs;
};

/// The inverted index. A character is a "doc"; docs are numbered by their static rank (see static_rank.cpp),
/// so of two equal matches the one with the lower number is the better one.
struct Index {
  // by doc
  std::vector<std::uint32_t> docEntity;     // index of its first entity in the list
  std::vector<std::uint32_t> docCodePoint;  // noCodePoint where the hex code is none
  std::vector<std::uint8_t> docPrior;       // cost in the ranking, see static_rank.cpp
  std::vector<std::uint32_t> nameOffset;    // in `names`, one more than docs
  std::string names;

  std::vector<std::pair<std::uint32_t, std::uint32_t>> byCodePoint;  // code point, doc; ascending

  std::vector<Phrase> phrases;

  // The dictionary: the folded words, ascending, without separators.
  std::string words;
  std::vector<std::uint32_t> wordOffset;  // one more than words
  // by word, one more: where its postings begin; a posting is a phrase << 8 | the word's position in it
  std::vector<std::uint32_t> postingStart;
  std::vector<std::uint32_t> postings;

  std::vector<std::pair<std::string, std::uint32_t>> signPhrases;       // sign key, phrase; ascending
  std::vector<std::pair<std::string_view, std::uint32_t>> htmlNames;    // spelled exactly, doc; ascending
  std::vector<std::pair<std::string_view, std::string_view>> synonyms;  // word, others separated by tabs
  std::vector<Group> groups;
  std::vector<std::string> languages;  // [0] empty, [1] "en"

  static constexpr std::uint32_t noCodePoint = 0xFFFFFFFF;
  static constexpr std::uint32_t noDoc = 0xFFFFFFFF;

  std::size_t docCount() const { return docEntity.size(); }
  std::string_view name(std::uint32_t doc) const {
    return std::string_view(names).substr(nameOffset[doc], nameOffset[doc + 1] - nameOffset[doc]);
  }
  std::uint32_t wordCount() const { return static_cast<std::uint32_t>(wordOffset.size() - 1); }
  std::string_view word(std::uint32_t id) const {
    return {words.data() + wordOffset[id], wordOffset[id + 1] - wordOffset[id]};
  }
  std::span<const std::uint32_t> postingsOf(WordRange range) const {
    return {postings.data() + postingStart[range.first], postings.data() + postingStart[range.last]};
  }

  /// The words that begin with `prefix`; the first of them is the word itself, if it is one.
  WordRange withPrefix(std::string_view prefix) const;
  /// Likewise, where a range is known that they are in.
  WordRange withPrefix(std::string_view prefix, WordRange within) const;
  /// The word itself; empty where it is none.
  WordRange exactly(std::string_view word) const;

  std::uint32_t docOfCodePoint(std::uint32_t codePoint) const;
  std::uint32_t docOfHtmlName(std::string_view name) const;

  std::size_t byteCount() const;
};

Index buildIndex(std::span<const Entity> entities);

/// The characters of a list, in the order of their static rank.
struct RankedDoc {
  std::uint32_t entity;
  std::uint32_t codePoint;
  std::uint8_t prior;
};
struct GroupMembers {
  std::string_view name;
  std::vector<std::uint32_t> entities;  // the first entity of each member's hex code
};
struct RankedDocs {
  std::vector<RankedDoc> docs;
  std::vector<GroupMembers> groups;
};
RankedDocs rankDocs(std::span<const Entity> entities);

}  // namespace glyph::search
