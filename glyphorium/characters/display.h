// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// Functions that show characters correctly even if they are newer than the installed ICU, which treats such
/// characters as unassigned. Any thread may call these functions.
namespace glyph {

/// Like visibleSymbol(), but leaves characters unchanged that only seem invisible because they are newer than
/// ICU.
GLYPHORIUM_EXPORT std::string shownSymbol(std::string_view symbol);

/// Like displayWidth(), but counts two columns for every emoji of several code points and for wide characters
/// that are newer than ICU.
GLYPHORIUM_EXPORT int shownWidth(std::string_view text);

}  // namespace glyph
