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

/// Collects everything that the library embeds in one block of bytes, and writes the source files that name
/// its parts. With one block behind one symbol the compiler has little to do and the loader relocates few
/// texts.
class EmbeddedImage {
 public:
  /// Adds a text constant of namespace glyph. `group` is empty if it is not a group table.
  void addText(std::string constant, std::string group, std::size_t entries, bool configured,
               std::string_view text);

  /// Adds a text constant that is a part of the text added last.
  void addPart(const std::string& constant, std::size_t entries, std::size_t offset, std::size_t size);

  /// Adds the offsets at which the rows of the text added last begin. configure() decodes that text.
  void addConfiguredRows(const std::vector<std::size_t>& offsets);

  /// Pairs of code point and offset in a table. Those of the name table ascend by code point.
  using Index = std::vector<std::pair<char32_t, std::uint32_t>>;
  void addNameIndex(const Index& index);
  void addEnrichmentIndex(const Index& index);

  /// Facts of the search: texts by code point, of a kind (an enumerator of SearchFactKind) and a language.
  void addSearchFacts(std::string kind, std::string language,
                      const std::map<char32_t, std::vector<std::string>>& facts);
  /// The members of a SearchLanguage.
  void addSearchLanguage(const std::string& code, std::string_view synonyms, const SearchGrammar& grammar);
  void addStopWords(std::string_view lines);
  /// The kind of a group, in the spelling of groups.tsv.
  void addGroupKind(const std::string& group, const std::string& kind) { groupKinds_.emplace(group, kind); }

  /// Writes embedded.bin, embedded.S, embedded_image.cpp and glyphorium/data/group_tables.h below the folder.
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
  std::string searchLanguages_;  // the initialisers
  Piece stopWords_{};
  std::map<std::string, std::string> groupKinds_;
};

}  // namespace glyph::generator
