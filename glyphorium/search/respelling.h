// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"

namespace glyph::search {

/// Returns other spellings of the folded words of a query. The most likely spelling is first:
/// - with one letter instead of two that people type for it ("ae" for "ä");
/// - with one word split into several words. A word of the dictionary is split only if it is the only word;
/// - with two neighbouring words joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  const Languages& languages);

}  // namespace glyph::search
