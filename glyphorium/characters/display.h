// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// How to show characters that are newer than the Unicode version of the ICU that the library runs with,
/// which takes them for unassigned. Any thread may call these functions.
namespace glyph {

/// Does what visibleSymbol() does, but keeps symbols that only ICU does not know.
GLYPHORIUM_EXPORT std::string shownSymbol(std::string_view symbol);

/// Does what displayWidth() does, but gives two columns to every emoji of several code points and to wide
/// characters that ICU does not know.
GLYPHORIUM_EXPORT int shownWidth(std::string_view text);

}  // namespace glyph
