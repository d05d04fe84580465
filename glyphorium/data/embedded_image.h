// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

struct EmbeddedText;

/// All embedded bytes, including padding. A text in the image may be parsed in place if it ends at least
/// textPadding bytes before the end of the image.
extern const std::string_view embeddedImage;

extern const std::string_view structuredUnicodeJsonText;
extern const EmbeddedText embeddedTextList[];
extern const std::size_t embeddedTextCount;

/// For each code point, the offset in structuredUnicodeJSON() of the name in the code point's first entry.
extern const CodePointIndex nameIndex;

/// For each code point: where its first row begins in additionalJson, as an offset.
extern const CodePointIndex enrichmentIndex;

/// The offsets in embeddedImage of all rows of the configured tables, then the end of the last row. The
/// offsets are 32-bit integers.
extern const std::string_view configuredRowOffsets;

/// Returns the JSON object of a row. `place` is the number of the row in the sequence of all configured
/// tables, starting at 0. Returns an empty text if there is no such row.
std::string_view configuredRow(std::size_t place) noexcept;

/// Returns the JSON object of the first row that the enrichment table has for the hex code. Returns an empty
/// text if there is no such row.
std::string_view enrichmentRow(std::string_view hex) noexcept;

}  // namespace glyph
