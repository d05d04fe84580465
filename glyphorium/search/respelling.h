// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"

namespace glyph::search {

/// Other spellings of the words of a query (folded), the likeliest first: without the function words of the
/// languages, with the letters that people type as two ("ae" for "ä") as one, with a word split in several,
/// with two words joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  const Languages& languages);

}  // namespace glyph::search
