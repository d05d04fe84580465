// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace glyph::generator {

/// Collects everything that the library embeds into one read-only blob, and writes the sources that name its
/// parts. One blob behind one symbol costs the compiler nothing and the loader no relocation per text.
class EmbeddedImage {
 public:
  /// A text constant of namespace glyph: a group table, or another text with an empty group.
  void addText(std::string constant, std::string group, std::size_t entries, bool configured,
               std::string_view text);

  /// A text constant that is a part of the text added last.
  void addPart(const std::string& constant, std::size_t entries, std::size_t offset, std::size_t size);

  /// Where the rows of the text added last begin in it; they are a part of the catalog.
  void addConfiguredRows(const std::vector<std::size_t>& offsets);

  /// Pairs of code point and offset, in the name table ascending by code point, or in the enrichment table.
  using Index = std::vector<std::pair<char32_t, std::uint32_t>>;
  void addNameIndex(const Index& index);
  void addEnrichmentIndex(const Index& index);

  /// Facts of the search: texts by code point, of a kind (an enumerator of SearchFactKind) and a language.
  void addSearchFacts(std::string kind, std::string language,
                      const std::map<char32_t, std::vector<std::string>>& facts);
  void addSynonyms(std::string language, std::string_view lines);

  /// Writes embedded.bin, embedded.S, embedded_image.cpp and glyphorium/data/group_tables.h below the folder.
  void write(const std::filesystem::path& folder);

 private:
  struct Text {
    std::string constant;
    std::string variable;  // that holds it
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
  std::vector<std::pair<std::string, Piece>> synonyms_;  // by language
};

}  // namespace glyph::generator
