// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "glyphorium/search/search.h"

namespace glyph::search {

/// Returns how much a search changed the query: 0 if not at all, 1 if it corrected words, 2 if the results
/// lack words.
inline int change(const SearchResults& found) {
  return found.lacksWords + found.approximate;
}

/// Merges the results of one query in two indexes. If the query was changed more for one index than for the
/// other, the results of the more changed query are dropped. Otherwise the results are sorted by cost. If
/// costs are equal, the results of `first` come first. A value of SearchResult::index must mean the same
/// character in both arguments. If a character is in both, only its better result remains.
SearchResults merged(SearchResults first, SearchResults second, std::size_t limit);

}  // namespace glyph::search
