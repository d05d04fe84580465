// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The key in settingsStore() for the choice whether the desktop's search covers the whole catalog. The value
/// is true or false.
inline constexpr std::string_view desktopSearchesCatalogKey = "desktopSearchesCatalog";

/// Returns true if the desktop's search shows characters of the whole catalog. Returns false if it shows only
/// the characters that the user added and those that hosts put into their search indexes. The default is
/// true. Every call reads settingsStore().
GLYPHORIUM_EXPORT bool desktopSearchesCatalog();

/// Stores the choice. Returns false if the choice could not be stored.
GLYPHORIUM_EXPORT bool setDesktopSearchesCatalog(bool wholeCatalog);

}  // namespace glyph
