// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

struct EmbeddedText;

/// Everything that is embedded, padding included. A text that lies in it and ends textPadding before its end
/// may be parsed in place.
extern const std::string_view embeddedImage;

extern const std::string_view structuredUnicodeJsonText;
extern const EmbeddedText embeddedTextList[];
extern const std::size_t embeddedTextCount;

/// Where the name of each code point's first entry begins in structuredUnicodeJSON().
extern const CodePointIndex nameIndex;

/// Where the first row of each code point begins in additionalJson.
extern const CodePointIndex enrichmentIndex;

/// Where each row of the configured tables begins in embeddedImage, as 32-bit integers.
extern const std::string_view configuredRowOffsets;

/// The JSON object that stands at that place, counted through all configured tables; empty behind the last.
std::string_view configuredRow(std::size_t place) noexcept;

/// The JSON object of the hex code's first row in the enrichment table; empty where it has none.
std::string_view enrichmentRow(std::string_view hex) noexcept;

}  // namespace glyph
