// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace glyph {

/// Creates the directory and its missing parents, private to the user (mode 0700). Existing ones keep their
/// mode. False, with errno set, where it cannot be created.
bool createPrivateDirectory(const std::filesystem::path& directory);

}  // namespace glyph
