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

/// Merges the results of a query in two indexes. If one of them changed the query more than the other, its
/// results are dropped. Otherwise the results are sorted by cost, and of equal cost those of `first` come
/// first. SearchResult::index must mean the same character in both: of a character that both have, the better
/// result remains.
SearchResults merged(SearchResults first, SearchResults second, std::size_t limit);

}  // namespace glyph::search
