// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

/// Functions that show characters correctly even if the installed ICU is too old to know them. Such an ICU
/// treats newer characters as unassigned. Any thread may call these functions.
namespace glyph {

/// Like visibleSymbol(), but keeps symbols that are merely newer than ICU.
GLYPHORIUM_EXPORT std::string shownSymbol(std::string_view symbol);

/// Like displayWidth(), but counts two columns for every emoji of several code points and for wide characters
/// that are newer than ICU.
GLYPHORIUM_EXPORT int shownWidth(std::string_view text);

}  // namespace glyph
