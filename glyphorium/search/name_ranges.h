// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// Returns the parts of `name`, a character's name, that match the words of a query. The parts are in
/// ascending order and do not overlap. Empty if no part matches.
std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name);

}  // namespace glyph::search
