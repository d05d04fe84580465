// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"

namespace glyph::search {

/// Returns other spellings of the folded words of a query. The most likely spelling is first:
/// - with one letter for letters that people type as two ("ae" for "ä");
/// - with one word that is not in the dictionary split into several words. Splits a word of the dictionary
/// only if it is alone;
/// - with two neighbouring words joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  const Languages& languages);

}  // namespace glyph::search
