// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index_image.h"

namespace glyph::search {

/// Builds the index of the supplement: all named characters beyond the catalog, Han characters with their
/// meanings and readings, and emoji. Each of these is a document, "doc" for short. A variant of an emoji with
/// skin tones has no doc of its own: the doc of the emoji without tones stands for it. Index::docEntity and
/// Index::docCodePoint contain the keys of characterKey(). A few emoji of the catalog also have a doc here,
/// with the names that only their variants have.
IndexImage buildSupplementIndex();

}  // namespace glyph::search
