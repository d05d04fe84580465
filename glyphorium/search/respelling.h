// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "glyphorium/search/index.h"

namespace glyph::search {

/// Other spellings of the words of a query (folded), the likeliest first: without the function words of the
/// languages (a bit mask), with the letters that people type as two ("ae" for "ä") as one, with a word split
/// in several, with two words joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  std::uint32_t languages);

}  // namespace glyph::search
