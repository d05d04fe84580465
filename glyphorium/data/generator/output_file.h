// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

/// Code that this generator shares with the generator of the search index.
namespace glyph::generator {

/// Writes the file and creates its folder. Does not touch a file that already has this content, so that the
/// build need not compile it again. Throws std::runtime_error if the file cannot be written.
void writeFile(const std::filesystem::path& file, std::string_view content);

}  // namespace glyph::generator
