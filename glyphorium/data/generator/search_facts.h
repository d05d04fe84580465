// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// Adds the sources of the search that are in no table: all files below search/, and all names of the HTML
/// Standard.
void addSearchFacts(const std::filesystem::path& sources, const std::vector<Language>& languages,
                    const NameTable& names, EmbeddedImage& image, Figures& figures);

}  // namespace glyph::generator
