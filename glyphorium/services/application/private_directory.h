// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace glyph {

/// Creates the directory and its missing parents with mode 0700, so that only the user can access them.
/// Directories that already exist keep their mode. Returns true if the directory exists afterwards. Otherwise
/// sets errno and returns false.
bool createPrivateDirectory(const std::filesystem::path& directory);

}  // namespace glyph
