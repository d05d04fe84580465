// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/data/generator/enrichment_table.h"
#include "glyphorium/data/generator/group_tables.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// The rows of the configured tables in the form of data/prepared_rows.h, which the library need not decode.
struct PreparedRows {
  std::string rows;   ///< PreparedRow structures, in the order of the tables
  std::string texts;  ///< the texts of each code point
  std::string order;  ///< 16-bit positions in `rows`, in ascending order of code points
};

/// Throws SourceError if the rows do not fit into the form.
PreparedRows prepareRows(const std::vector<GroupTable>& tables, const NameTable& names,
                         const EnrichmentTable& enrichment);

}  // namespace glyph::generator
