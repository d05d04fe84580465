// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

struct GroupTable {
  std::string constant;  ///< the name of the text constant
  std::string group;
  bool configured;   ///< whether configure() decodes the table
  std::string kind;  ///< the kind of the group, for the ranking of the search
  std::vector<char32_t> members;
  bool isSFSymbols;  ///< whether the members are SF Symbols
  std::string json;
};

/// The texts of a row, without JSON escapes.
struct RowTexts {
  std::string hex;
  std::string htmlHex;
  std::string htmlDecimal;
  std::string symbol;
  std::string fallbackName;
};

/// Returns the texts of a row for this code point, which must have a name.
RowTexts rowTexts(char32_t codePoint, const NameTable& names);

/// Returns all tables in the order of groups.tsv. Throws SourceError if a source breaks a rule.
std::vector<GroupTable> makeGroupTables(const std::filesystem::path& sources, const NameTable& names);

}  // namespace glyph::generator
