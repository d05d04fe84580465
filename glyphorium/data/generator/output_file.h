// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

/// Code that two generators of the build share: this generator and the generator of the search index.
namespace glyph::generator {

/// Writes the file and creates its folder. Does not write a file that already has this content. So a build
/// without changes compiles nothing. Throws std::runtime_error if the file cannot be written.
void writeFile(const std::filesystem::path& file, std::string_view content);

}  // namespace glyph::generator
