// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

struct EmbeddedText;

/// All embedded bytes, padding included. A text in it that ends at least textPadding bytes before the end of
/// the image may be parsed in place.
extern const std::string_view embeddedImage;

extern const std::string_view structuredUnicodeJsonText;
extern const EmbeddedText embeddedTextList[];
extern const std::size_t embeddedTextCount;

/// The offset in structuredUnicodeJSON() of the name in each code point's first entry.
extern const CodePointIndex nameIndex;

/// The offset in additionalJson of each code point's first row.
extern const CodePointIndex enrichmentIndex;

/// The offset in embeddedImage of each row of the configured tables, as 32-bit integers; then the end of the
/// last row.
extern const std::string_view configuredRowOffsets;

/// The JSON object of a row, counted from 0 through all configured tables; empty if there is no such row.
std::string_view configuredRow(std::size_t place) noexcept;

/// The JSON object of the hex code's first row in the enrichment table; empty if it has none.
std::string_view enrichmentRow(std::string_view hex) noexcept;

}  // namespace glyph
