// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

/// What the generators of the build share: this one and that of the search index.
namespace glyph::generator {

/// Writes the file and creates its folder. Leaves a file with this content alone, so that a build that
/// changes nothing compiles nothing. Throws std::runtime_error if the file cannot be written.
void writeFile(const std::filesystem::path& file, std::string_view content);

}  // namespace glyph::generator
