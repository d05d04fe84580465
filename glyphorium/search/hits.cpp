// SPDX-License-Identifier: MIT
#include "glyphorium/search/hits.h"

#include <algorithm>
#include <utility>

namespace glyph::search {

Hits::Best Hits::best(std::size_t limit, std::size_t docCount) && {
  Best best{std::move(all_), 0};
  std::vector<Hit>& hits = best.hits;
  std::vector<char> seen(docCount, 0);
  for (const Hit& hit : hits) best.total += std::exchange(seen[hit.doc], 1) == 0;
  // Only the first hits are sorted, because only the `limit` best docs are needed. One doc may have several
  // of these hits, and all but its best hit are removed later. So the number of such repeated hits is added
  // to the limit.
  const auto isBefore = [](const Hit& a, const Hit& b) { return a.order < b.order; };
  if (limit < best.total) {
    const std::size_t repeated = hits.size() - best.total;
    const auto end = hits.begin() + static_cast<std::ptrdiff_t>(limit + repeated);
    std::nth_element(hits.begin(), end, hits.end(), isBefore);
    hits.erase(end, hits.end());
  }
  std::sort(hits.begin(), hits.end(), isBefore);
  std::erase_if(hits, [&](const Hit& hit) { return std::exchange(seen[hit.doc], 0) == 0; });
  if (limit < hits.size()) hits.resize(limit);
  return best;
}

}  // namespace glyph::search
