// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/search/index_image.h"
#include "glyphorium/search/word_numbers.h"
#include "glyphorium/search/words.h"

namespace glyph::search {

/// Stores the texts of a TextList.
struct Texts {
  std::string bytes;
  std::vector<std::uint32_t> begins{0};

  void add(std::string_view text) {
    bytes += text;
    begins.push_back(static_cast<std::uint32_t>(bytes.size()));
  }
  TextList list() const { return {bytes, begins}; }
};

/// Collects documents and their texts, and makes an index of them. A document, "doc" for short, is a
/// character. Add each doc and then its texts. Add the docs in the order of the static rank (see
/// static_rank.h).
class IndexBuilder {
 public:
  /// How the index stores the positions of words: see Index::phrases and Index::postings.
  /// - `phrases` stores each text in Index::phrases. It works for any list of entities.
  /// - `shapes` does not use Index::phrases, which saves memory if most texts are short. It needs at most
  ///   65,536 documents, sorted by prior and then by code point, each with its code point as its entity.
  enum class Form { phrases, shapes };

  explicit IndexBuilder(Form form);

  /// Adds a doc and returns its number.
  std::uint32_t addDoc(std::uint32_t entity, std::uint32_t codePoint, std::uint8_t prior);
  /// Adds the shown name of the doc that was added last, for an index without Index::nameOf.
  void addShownName(std::string_view name) { names_.add(name); }
  /// Adds a text of the doc that was added last. `language` is empty for a text in no language.
  void addText(PhraseKind kind, std::string_view language, std::string_view text);
  /// Adds a name of the HTML Standard for the doc that was added last. It must stay valid until image().
  void addHtmlName(std::string_view name) { htmlNames_.emplace_back(name, lastDoc()); }
  /// Adds a group. `docs` are the numbers of its docs.
  void addGroup(std::string_view name, const std::vector<std::uint32_t>& docs);

  IndexImage image() &&;

 private:
  struct Token {
    std::uint32_t word;
    std::uint32_t posting;
  };

  std::uint32_t lastDoc() const { return static_cast<std::uint32_t>(docEntity_.size() - 1); }
  std::uint8_t numberOfLanguage(std::string_view language);
  std::uint32_t languagesJoinedBy(std::string_view word) const;
  std::uint32_t numberOfShape(const Shape& shape);
  void makeDictionary();

  const Form form_;
  WordNumbers words_;
  std::vector<std::uint32_t> joiningIn_;  // languagesJoinedBy(), indexed by word number
  std::uint32_t headFirst_ = 0;           // bit i: nouns come first in language i
  WordReader reader_{{}};
  std::vector<Token> tokens_;
  std::uint32_t textOfDoc_ = 0;                          // the number of the next text of the last doc
  std::map<std::uint64_t, std::uint32_t> shapeNumbers_;  // by the bytes of the shape

  // The parts of the index.
  std::vector<std::uint32_t> docEntity_;
  std::vector<std::uint32_t> docCodePoint_;
  std::vector<std::uint8_t> docPrior_;
  Texts names_;
  std::vector<std::uint32_t> phrases_;
  std::vector<std::uint32_t> phraseStart_;
  std::vector<Shape> shapes_;
  Texts dictionary_;
  std::vector<std::uint32_t> postingStart_;
  std::vector<std::uint32_t> postings_;
  std::vector<std::pair<std::string, std::uint32_t>> signPostings_;
  std::vector<std::pair<std::string_view, std::uint32_t>> htmlNames_;
  Texts groupNames_;
  Texts groupWords_;
  std::vector<std::uint32_t> groupDocStart_{0};
  std::vector<std::uint32_t> groupDocs_;
  std::vector<std::string> languages_{"", "en"};
};

}  // namespace glyph::search
