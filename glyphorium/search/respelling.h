// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"

namespace glyph::search {

/// Returns other spellings of the folded words of a query. The most likely spelling is first:
/// - letters that are typed in place of another letter are replaced by that letter: "ae" by "ä";
/// - one word is split into several words. A word of the dictionary is split only if it is the only word of
///   the query;
/// - two neighbouring words are joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  const Languages& languages);

}  // namespace glyph::search
