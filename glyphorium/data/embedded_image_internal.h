// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace glyph {

struct EmbeddedText;

/// Everything that is embedded, padding included. A text that lies in it and ends textPadding before its end
/// may be parsed in place.
extern const std::string_view embeddedImage;

/// Pairs of 32-bit integers, ascending: a code point of the name table, and where its first entry's name
/// begins in structuredUnicodeJSON().
extern const std::string_view nameIndexImage;

extern const std::string_view structuredUnicodeJsonText;
extern const EmbeddedText embeddedTextList[];
extern const std::size_t embeddedTextCount;

}  // namespace glyph
