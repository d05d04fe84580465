// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// Adds what the search knows beyond the tables: the aliases, annotations, everyday names, synonyms and the
/// order of wanted characters below search/, and all the names of the HTML Standard.
void addSearchFacts(const std::filesystem::path& sources, const NameTable& names, EmbeddedImage& image,
                    Figures& figures);

}  // namespace glyph::generator
