// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "glyphorium/data/generator/embedded_image.h"

namespace glyph::generator {

/// Adds the ways to write characters, from the folder input/ of the sources, sorted by what is written. Fails
/// if a line has the wrong form.
void addNotations(const std::filesystem::path& sources, EmbeddedImage& image);

}  // namespace glyph::generator
