// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

#include "glyphorium/data/generator/embedded_image.h"

namespace glyph::generator {

/// Adds the constants of data/notations.h, from the folder input/ of the sources. Fails if a line has the
/// wrong form.
void addNotations(const std::filesystem::path& sources, EmbeddedImage& image);

}  // namespace glyph::generator
