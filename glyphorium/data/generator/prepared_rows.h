// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/data/generator/enrichment_table.h"
#include "glyphorium/data/generator/group_tables.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// The rows of the configured tables in a binary form (see data/prepared_rows.h), so that the library need
/// not decode JSON.
struct PreparedRows {
  std::string rows;   ///< PreparedRow structures, in the order of the tables
  std::string texts;  ///< the texts of each code point
  std::string order;  ///< 16-bit positions in `rows`, in ascending order of code points
};

/// Converts the tables. Throws SourceError if a size or number does not fit into the fields of PreparedRow.
PreparedRows prepareRows(const std::vector<GroupTable>& tables, const NameTable& names,
                         const EnrichmentTable& enrichment);

}  // namespace glyph::generator
