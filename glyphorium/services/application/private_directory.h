// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace glyph {

/// Creates the directory and its missing parents, private to the user (mode 0700). Existing directories keep
/// their mode. Returns false, with errno set, if it cannot be created.
bool createPrivateDirectory(const std::filesystem::path& directory);

}  // namespace glyph
