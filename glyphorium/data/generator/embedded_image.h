// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/data/generator/prepared_rows.h"
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

  /// Pairs of a code point and an offset, in ascending order of code points.
  using Index = std::vector<std::pair<char32_t, std::uint32_t>>;
  void addNameIndex(const Index& index);

  /// Adds the data that the functions of data/prepared_rows.h read.
  void addPreparedRows(const PreparedRows& rows);
  void addPreparedEnrichment(std::string_view rows, const Index& index);

  /// Adds data of the search: the texts of each code point. `kind` is the name of an enumerator of
  /// SearchFactKind. `language` is a BCP 47 tag, or empty for texts in no language.
  void addSearchFacts(std::string kind, std::string language,
                      const std::map<char32_t, std::vector<std::string>>& facts);
  /// Adds a SearchLanguage for the language with this BCP 47 tag.
  void addSearchLanguage(const std::string& code, std::string_view synonyms, const SearchGrammar& grammar);
  void addStopWords(std::string_view lines);
  /// Adds the supplementary usage notes in one language, by code point. `language` is a BCP 47 tag.
  void addNotes(std::string language, const std::map<char32_t, std::string>& notes);
  /// Adds the constant `searchMarks` with these lines.
  void addMarks(std::string_view lines);
  /// Adds the kind of a group. `kind` is a text from groups.tsv.
  void addGroupKind(const std::string& group, const std::string& kind) { groupKinds_.emplace(group, kind); }

  /// Maps a code point to its line of text, without a line feed.
  using CharacterTable = std::map<char32_t, std::string>;
  /// Adds a constant of character_tables.h.
  void addCharacterTable(const std::string& constant, const CharacterTable& table);
  /// Adds a constant of character_tables.h that has the type PackedTexts.
  void addPackedTable(const std::string& constant, const CharacterTable& table);
  /// Adds lines to the CharacterAnnotations of the language with this BCP 47 tag. A line replaces an earlier
  /// line with the same key.
  void addCharacterAnnotations(const std::string& language, const CharacterTable& table);
  /// Adds a constant of notations.h.
  void addNotations(const std::string& constant, std::string_view lines);

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
  struct Notes {
    std::string language;
    Piece index;
    Piece texts;
  };

  static std::string view(Piece piece);
  static std::string definition(std::string_view type, std::string_view constant, Piece piece);
  Piece add(std::string_view bytes);
  std::string codePointTexts(const CharacterTable& table);
  std::string packedTexts(const CharacterTable& table);
  void addPiece(std::string_view type, std::string_view constant, std::string_view bytes);
  std::string searchFactDefinitions() const;
  std::string noteDefinitions() const;

  std::string blob_;
  std::vector<Text> texts_;
  std::size_t lastOffset_ = 0;
  std::string pieces_;  // the C++ definitions of the names for parts of the block
  std::vector<SearchFacts> searchFacts_;
  std::string searchLanguages_;  // the C++ initialisers of the languages
  std::vector<Notes> notes_;
  std::string notations_;  // the C++ definitions of the notations
  std::map<std::string, std::string> groupKinds_;
  std::vector<std::pair<std::string, CharacterTable>> annotations_;  // by language
};

}  // namespace glyph::generator
