// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/state/skin_tone.h"

namespace glyph::search {

/// Removes the names of skin tones from the folded words of a query: "medium light skin tone", "dunkle
/// hautfarbe". The names may be in any language that has annotations. Returns the tones in the order of the
/// query.
std::vector<SkinTone> takeSkinTones(std::vector<std::string>& words);

/// Returns the folded words of the name of an emoji, without the words that name a skin tone.
std::vector<std::string> wordsWithoutSkinTones(std::string_view name);

/// Returns the skin tones in the text of an emoji, in the order of the text. Empty if there are none.
std::vector<SkinTone> skinTonesOf(std::string_view emoji);

}  // namespace glyph::search
