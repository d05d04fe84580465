// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// The Unicode name table: its text, and what the group tables and the name index take from it.
class NameTable {
 public:
  explicit NameTable(const std::filesystem::path& sources);

  struct Entry {
    char32_t codePoint;
    std::string name;
    Place place;
  };
  /// In the order of the character data file.
  const std::vector<Entry>& unicode() const { return unicode_; }
  /// In the order of the symbol library.
  const std::vector<Entry>& symbols() const { return symbols_; }

  /// The first entry with the code point in table order (Unicode before SF Symbols), or nullptr.
  const Entry* find(char32_t codePoint) const;
  bool isSymbol(char32_t codePoint) const { return symbolPlaces_.contains(codePoint); }

  /// The JSON array of all entries: first piece, SF Symbols fragment, closing bracket.
  struct Text {
    std::string json;
    std::size_t fragmentOffset;  // of the SF Symbols fragment in json
    std::size_t fragmentSize;
    std::vector<std::pair<char32_t, std::uint32_t>>
        index;  // first entry's code point, offset of its name in json
  };
  Text text() const;

 private:
  std::vector<Entry> unicode_;
  std::vector<Entry> symbols_;
  std::map<char32_t, std::size_t> unicodePlaces_;
  std::map<char32_t, std::size_t> symbolPlaces_;
};

}  // namespace glyph::generator
