// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The setting's key in settingsStore(); true or false.
inline constexpr std::string_view desktopSearchesCatalogKey = "desktopSearchesCatalog";

/// Whether the desktop's search shows characters of the whole catalog; else only what the user added and what
/// hosts put into their search indexes. True unless the user said no. Read from settingsStore() on every
/// call.
GLYPHORIUM_EXPORT bool desktopSearchesCatalog();

/// Stores the choice. False where it could not be stored.
GLYPHORIUM_EXPORT bool setDesktopSearchesCatalog(bool wholeCatalog);

}  // namespace glyph
