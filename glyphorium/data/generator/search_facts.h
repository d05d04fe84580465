// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// Adds the data of the search that the group tables and the enrichment table lack to the image: the data of
/// all files in search/, and all HTML names. Throws SourceError if a source breaks a rule.
void addSearchFacts(const std::filesystem::path& sources, const std::vector<Language>& languages,
                    const NameTable& names, EmbeddedImage& image, Figures& figures);

}  // namespace glyph::generator
