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
  std::vector<std::pair<char32_t, std::uint32_t>> index;  ///< where the first row of a code point begins
};

/// `configured` are the code points of the tables that configure() decodes. Records the figures of the table.
EnrichmentTable makeEnrichmentTable(const std::filesystem::path& sources,
                                    const std::vector<Language>& languages, const NameTable& names,
                                    const std::set<char32_t>& configured, Figures& figures);

}  // namespace glyph::generator
