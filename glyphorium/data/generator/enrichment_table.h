// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

struct EnrichmentTable {
  std::string json;
  std::size_t rows;
};

/// `configured` are the code points of the tables that the catalog decodes; the figures of the table are
/// noted in `figures`.
EnrichmentTable makeEnrichmentTable(const std::filesystem::path& sources, const NameTable& names,
                                    const std::set<char32_t>& configured, Figures& figures);

}  // namespace glyph::generator
