// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

struct EmbeddedText;

/// All bytes of the embedded data, including padding. A text in the image may be parsed in place if it ends
/// at least textPadding bytes before the end of the image.
extern const std::string_view embeddedImage;

extern const std::string_view structuredUnicodeJsonText;
extern const EmbeddedText embeddedTextList[];
extern const std::size_t embeddedTextCount;

/// Maps some code points to the offset in structuredUnicodeJSON() of their first entry. The line of any other
/// code point is found by reading on from the line of the nearest lower code point in the index.
extern const CodePointIndex nameIndex;

/// Maps each code point that has enrichment to the offset of its row in preparedEnrichment.
extern const CodePointIndex enrichmentIndex;
extern const std::string_view preparedEnrichment;

}  // namespace glyph
