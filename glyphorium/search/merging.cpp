// SPDX-License-Identifier: MIT
#include "glyphorium/search/merging.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>
#include <vector>

namespace glyph::search {

SearchResults merged(SearchResults first, SearchResults second, std::size_t limit) {
  const bool dropsFirst =
      !second.results.empty() && (first.results.empty() || change(second) < change(first));
  if (dropsFirst) {
    first = std::move(second);
  } else if (!second.results.empty() && change(second) == change(first)) {
    std::vector<SearchResult> both;
    both.reserve(first.results.size() + second.results.size());
    std::merge(std::make_move_iterator(first.results.begin()), std::make_move_iterator(first.results.end()),
               std::make_move_iterator(second.results.begin()), std::make_move_iterator(second.results.end()),
               std::back_inserter(both),
               [](const SearchResult& a, const SearchResult& b) { return a.cost < b.cost; });
    std::unordered_set<std::size_t> seen;
    first.total += second.total;
    first.total -=
        std::erase_if(both, [&](const SearchResult& result) { return !seen.insert(result.index).second; });
    first.results = std::move(both);
  }
  if (first.results.size() > limit) first.results.resize(limit);
  return first;
}

}  // namespace glyph::search
