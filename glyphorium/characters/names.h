// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the name of the code point in Unicode 17.0: "RIGHTWARDS ARROW", "CJK UNIFIED IDEOGRAPH-6F22",
/// "HANGUL SYLLABLE GAG". Empty for code points without a name: controls, private use, surrogates,
/// noncharacters, unassigned code points and numbers above 10FFFF. Any thread may call it.
GLYPHORIUM_EXPORT std::string characterName(char32_t codePoint);

/// Returns the name of the code point, or its label if it has no name: "<control-0009>",
/// "<private-use-E000>", "<surrogate-D800>", "<noncharacter-FFFF>", "<reserved-0378>". Empty for numbers
/// above 10FFFF. Any thread may call it.
GLYPHORIUM_EXPORT std::string characterNameOrLabel(char32_t codePoint);

/// Returns the code point that has this name or this formal alias ("NO-BREAK SPACE", "NBSP", "CJK UNIFIED
/// IDEOGRAPH-6F22"). Letter case is ignored. Returns nullopt if there is no such code point. The function
/// compares `name` with all names one by one, which takes about a millisecond. Any thread may call it.
GLYPHORIUM_EXPORT std::optional<char32_t> characterNamed(std::string_view name);

}  // namespace glyph
