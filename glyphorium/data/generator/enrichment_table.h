// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

struct EnrichmentTable {
  std::string json;
  std::size_t rows;
  std::string prepared;  ///< the first row of each code point, as PreparedEnrichmentReader reads it
  /// Each code point and the offset of its row in `prepared`, in ascending order of code points.
  std::vector<std::pair<char32_t, std::uint32_t>> index;
};

/// Builds the enrichment table from the files in enrichment/ and records its sizes and counts in Figures.
/// `configured` contains the code points of the tables that configure() decodes. Throws SourceError if a
/// source breaks a rule.
EnrichmentTable makeEnrichmentTable(const std::filesystem::path& sources,
                                    const std::vector<Language>& languages, const NameTable& names,
                                    const std::set<char32_t>& configured, Figures& figures);

}  // namespace glyph::generator
