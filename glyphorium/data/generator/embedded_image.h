// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/data/generator/search_grammar.h"

namespace glyph::generator {

/// Collects all embedded data of the library in one block of bytes, and writes the source files that define
/// names for the parts of the block. One block with one symbol is quick to compile, and the loader needs few
/// relocations.
class EmbeddedImage {
 public:
  /// Adds a text constant of namespace glyph. `group` is empty if the text is not a group table.
  void addText(std::string constant, std::string group, std::size_t entries, bool configured,
               std::string_view text);

  /// Adds a text constant that is a part of the text added last. `offset` and `size` are in bytes.
  void addPart(const std::string& constant, std::size_t entries, std::size_t offset, std::size_t size);

  /// Adds the byte offsets at which the rows of the text added last begin. Call this only for a text that
  /// configure() decodes.
  void addConfiguredRows(const std::vector<std::size_t>& offsets);

  /// Pairs of a code point and an offset in a table. addNameIndex() needs pairs in ascending order of code
  /// points.
  using Index = std::vector<std::pair<char32_t, std::uint32_t>>;
  void addNameIndex(const Index& index);
  void addEnrichmentIndex(const Index& index);

  /// Adds data of the search: the texts of each code point. `kind` is the name of an enumerator of
  /// SearchFactKind. `language` is a BCP 47 tag, or empty for texts in no language.
  void addSearchFacts(std::string kind, std::string language,
                      const std::map<char32_t, std::vector<std::string>>& facts);
  /// Adds a SearchLanguage with these members.
  void addSearchLanguage(const std::string& code, std::string_view synonyms, const SearchGrammar& grammar);
  void addStopWords(std::string_view lines);
  /// Adds the kind of a group. `kind` has the spelling of groups.tsv.
  void addGroupKind(const std::string& group, const std::string& kind) { groupKinds_.emplace(group, kind); }

  /// Writes embedded.bin, embedded.S, embedded_image.cpp and glyphorium/data/group_tables.h to the folder.
  /// Throws std::runtime_error if a file cannot be written.
  void write(const std::filesystem::path& folder);

 private:
  struct Text {
    std::string constant;
    std::string variable;  // C++ name of the constant
    std::string group;
    std::size_t entries;
    bool configured;
    std::size_t offset;
    std::size_t size;
  };

  struct Piece {
    std::size_t offset;
    std::size_t size;
  };
  struct SearchFacts {
    std::string kind;
    std::string language;
    Piece index;
    Piece texts;
  };

  static std::string view(Piece piece);
  static std::string definition(std::string_view type, std::string_view constant, Piece piece);
  Piece add(std::string_view bytes);
  std::string searchFactDefinitions() const;

  std::string blob_;
  std::vector<Text> texts_;
  std::size_t lastOffset_ = 0;
  std::size_t configuredEnd_ = 0;
  std::string configuredRows_;
  Piece nameIndex_{};
  Piece enrichmentIndex_{};
  std::vector<SearchFacts> searchFacts_;
  std::string searchLanguages_;  // the C++ initialisers of the languages
  Piece stopWords_{};
  std::map<std::string, std::string> groupKinds_;
};

}  // namespace glyph::generator
