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
  std::string json;
  std::vector<std::size_t> rowOffsets;  ///< the offsets in `json` at which the objects of the members begin
};

/// Returns all tables in the order of groups.tsv. Throws SourceError if a source breaks a rule.
std::vector<GroupTable> makeGroupTables(const std::filesystem::path& sources, const NameTable& names);

}  // namespace glyph::generator
