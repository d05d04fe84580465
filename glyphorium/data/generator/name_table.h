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

/// The names of all code points, and the Unicode name table that contains these names.
class NameTable {
 public:
  /// Reads the names from the sources. Throws SourceError if a source breaks a rule.
  explicit NameTable(const std::filesystem::path& sources);

  struct Entry {
    char32_t codePoint;
    std::string name;
    Place place;
  };
  /// Returns the Unicode entries in the order of the character data file.
  const std::vector<Entry>& unicode() const { return unicode_; }
  /// Returns the SF Symbols in the order of the symbol library.
  const std::vector<Entry>& symbols() const { return symbols_; }

  /// Returns the first entry of the code point in the table, where Unicode entries precede SF Symbols.
  /// Returns nullptr if the code point has no entry.
  const Entry* find(char32_t codePoint) const;
  bool isSymbol(char32_t codePoint) const { return symbolPlaces_.contains(codePoint); }

  /// The name table as JSON text.
  struct Text {
    std::string json;            ///< the array of all entries: first those of Unicode, then the SF Symbols
    std::size_t fragmentOffset;  ///< offset in `json` of the SF Symbols
    std::size_t fragmentSize;    ///< size of the SF Symbols, without the closing bracket
    /// For each code point, the offset in `json` of its first entry. In ascending order of code points.
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
