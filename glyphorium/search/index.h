// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

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

/// A range of texts in a list, [first, last).
struct TextRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  bool empty() const { return first == last; }
};

/// Texts, one behind the other.
struct TextList {
  std::span<const char> bytes;
  std::span<const std::uint32_t> begins;  // one more than texts

  std::uint32_t size() const { return static_cast<std::uint32_t>(begins.size() - 1); }
  std::string_view operator[](std::uint32_t i) const {
    return {bytes.data() + begins[i], begins[i + 1] - begins[i]};
  }

  // Of ascending texts:

  /// Those that begin with `prefix`; the first of them is the prefix itself, if it is one of them.
  TextRange withPrefix(std::string_view prefix) const;
  /// Likewise, where a range is known that they are in.
  TextRange withPrefix(std::string_view prefix, TextRange within) const;
  /// The text itself; empty where it is none of them.
  TextRange exactly(std::string_view text) const;
};

struct CodePointDoc {
  std::uint32_t codePoint;
  std::uint32_t doc;
};

struct Group {
  std::string_view name;
  std::string_view words;  ///< of the name, folded, with blanks between them
  std::span<const std::uint32_t> docs;

  bool hasWordWithPrefix(std::string_view prefix) const;
};

/// The inverted index, as views into one image (see index_image.cpp). A character is a "doc"; docs are
/// numbered by their static rank (see static_rank.cpp), so of two equal matches the one with the lower number
/// is the better one.
struct Index {
  // by doc
  std::span<const std::uint32_t> docEntity;     // place of its first entity in the list
  std::span<const std::uint32_t> docCodePoint;  // noCodePoint where the hex code is none
  std::span<const std::uint8_t> docPrior;       // cost in the ranking, see static_rank.cpp
  TextList names;

  std::span<const CodePointDoc> byCodePoint;  // ascending

  std::span<const Phrase> phrases;

  TextList words;  // the dictionary: folded, ascending
  // by word, one more: where its postings begin; a posting is a phrase << 8 | the word's position in it
  std::span<const std::uint32_t> postingStart;
  std::span<const std::uint32_t> postings;

  TextList signs;                              // sign keys, ascending
  std::span<const std::uint32_t> signPhrases;  // by sign key: its phrase
  TextList htmlNames;                          // spelled exactly, ascending
  std::span<const std::uint32_t> htmlDocs;     // by HTML name

  TextList groupNames;
  TextList groupWords;                           // as Group has them
  std::span<const std::uint32_t> groupDocStart;  // in groupDocs, one more than groups
  std::span<const std::uint32_t> groupDocs;

  TextList languages;  // [0] empty, [1] "en"

  static constexpr std::uint32_t noCodePoint = 0xFFFFFFFF;
  static constexpr std::uint32_t noDoc = 0xFFFFFFFF;

  std::size_t docCount() const { return docEntity.size(); }
  std::span<const std::uint32_t> postingsOf(TextRange range) const {
    return postings.subspan(postingStart[range.first], postingStart[range.last] - postingStart[range.first]);
  }
  /// Whether a language is among those of which the bits are set.
  bool hasLanguage(std::string_view language, std::uint32_t languageBits) const;
  /// Whether the word only joins others in one of these languages.
  bool isFunctionWord(std::string_view word, std::uint32_t languageBits) const;

  std::uint32_t groupCount() const { return groupNames.size(); }
  Group group(std::uint32_t i) const {
    return {groupNames[i], groupWords[i],
            groupDocs.subspan(groupDocStart[i], groupDocStart[i + 1] - groupDocStart[i])};
  }

  std::uint32_t docOfCodePoint(std::uint32_t codePoint) const;
  std::uint32_t docOfHtmlName(std::string_view name) const;
};

/// An index in one piece, which can be used where it lies: the same on every machine of one byte order for
/// the same entities. Aligned to eight bytes.
using IndexImage = std::vector<std::byte>;

IndexImage buildIndex(std::span<const Entity> entities);

IndexImage packed(const Index& index);

/// The index in an image, which must outlive it.
Index openIndex(std::span<const std::byte> image);

/// The image that the build made for the entities that configure() puts into buildInEntities().
std::span<const std::byte> catalogIndexImage();

/// The priors of characters for private use are at least that high, and no others.
inline constexpr std::uint8_t privateUsePrior = 34;

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
