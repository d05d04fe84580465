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

/// For some code points, the offset in structuredUnicodeJSON() of the line with the code point's first entry.
/// The lines of the other code points follow the line of the nearest lower code point in the index.
extern const CodePointIndex nameIndex;

/// For each code point that has enrichment, the offset in preparedEnrichment of its row.
extern const CodePointIndex enrichmentIndex;
extern const std::string_view preparedEnrichment;

}  // namespace glyph
