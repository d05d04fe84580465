// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <vector>

#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"

namespace glyph::generator {

/// Adds the constants of character_tables.h to the image. Throws SourceError if a source breaks a rule.
void addCharacterTables(const std::filesystem::path& sources, const std::vector<Language>& languages,
                        const NameTable& names, EmbeddedImage& image);

}  // namespace glyph::generator
