// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// The parts of a character's name that the words match, ascending.
std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name);

}  // namespace glyph::search
