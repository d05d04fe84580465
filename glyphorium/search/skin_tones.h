// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/state/skin_tone.h"

namespace glyph::search {

/// Removes the names of skin tones from the words of a query, in any language of CLDR's names that the
/// library has: "medium light skin tone", "dunkle hautfarbe". Returns the tones in their order.
std::vector<SkinTone> takeSkinTones(std::vector<std::string>& words);

/// Returns the skin tones of an emoji in their order. Empty if it has none.
std::vector<SkinTone> skinTonesOf(std::string_view emoji);

}  // namespace glyph::search
