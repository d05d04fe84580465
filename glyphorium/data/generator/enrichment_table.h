// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

struct EnrichmentTable {
  std::string json;
  std::size_t rows;
  std::vector<std::pair<char32_t, std::uint32_t>> index;  // where the first row of a code point begins
};

/// `configured` are the code points of the tables that the catalog decodes; the figures of the table are
/// noted in `figures`.
EnrichmentTable makeEnrichmentTable(const std::filesystem::path& sources, const NameTable& names,
                                    const std::set<char32_t>& configured, Figures& figures);

}  // namespace glyph::generator
