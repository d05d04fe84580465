// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index_image.h"

namespace glyph::search {

/// Builds the index of the supplement: all named characters beyond the catalog, Han characters by their
/// meanings and readings, and emoji. An emoji with skin tones has no doc of its own: the doc of its base
/// stands for it. Index::docEntity and Index::docCodePoint have the keys of emoji_numbers.h. A few emoji of
/// the catalog also have a doc here, with the names that only their variants have.
IndexImage buildSupplementIndex();

}  // namespace glyph::search
