// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// A group table.
struct GroupTable {
  std::string constant;
  std::string group;
  bool configured;   ///< configure() decodes it
  std::string kind;  ///< of the group, for the ranking of the search
  std::vector<char32_t> members;
  std::string json;
  std::vector<std::size_t> rowOffsets;  ///< where each member's object begins in `json`
};

/// All tables in the order of groups.tsv.
std::vector<GroupTable> makeGroupTables(const std::filesystem::path& sources, const NameTable& names);

}  // namespace glyph::generator
