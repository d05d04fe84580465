// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "glyphorium/export.h"

/// The English names of the short property values in CharacterFacts, from the Unicode Standard. Each function
/// returns an empty text for an unknown value. Any thread may call them.
namespace glyph {

GLYPHORIUM_EXPORT std::string_view categoryName(std::string_view category) noexcept;  ///< "uppercase letter"
GLYPHORIUM_EXPORT std::string_view bidirectionalClassName(
    std::string_view value) noexcept;                                                    ///< "left-to-right"
GLYPHORIUM_EXPORT std::string_view eastAsianWidthName(std::string_view value) noexcept;  ///< "fullwidth"

}  // namespace glyph
