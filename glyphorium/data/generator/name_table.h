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

/// The names of all code points, and the Unicode name table made of them.
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

  /// The first entry of the code point in the table (Unicode is before SF Symbols), or nullptr.
  const Entry* find(char32_t codePoint) const;
  bool isSymbol(char32_t codePoint) const { return symbolPlaces_.contains(codePoint); }

  /// The JSON array of all entries: those of Unicode, the SF Symbols, the closing bracket.
  struct Text {
    std::string json;
    std::size_t fragmentOffset;  ///< of the SF Symbols in json
    std::size_t fragmentSize;
    /// Code points, and the offset in json of the name in the first entry.
    std::vector<std::pair<char32_t, std::uint32_t>> index;
  };
  Text text() const;

 private:
  std::vector<Entry> unicode_;
  std::vector<Entry> symbols_;
  std::map<char32_t, std::size_t> unicodePlaces_;
  std::map<char32_t, std::size_t> symbolPlaces_;
};

}  // namespace glyph::generator
