// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string_view>

/// A function that this generator and the generator of the search index have in common.
namespace glyph::generator {

/// Writes the file and creates its folder. Does not touch a file that already has this content, so that the
/// build need not compile it again. Throws std::runtime_error if the file cannot be written.
void writeFile(const std::filesystem::path& file, std::string_view content);

}  // namespace glyph::generator
