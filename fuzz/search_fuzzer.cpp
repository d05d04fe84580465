// SPDX-License-Identifier: MIT
// Whatever somebody types or pastes is answered, with results that a host can show.
#include <algorithm>
#include <cstdint>
#include <set>
#include <string_view>

#include "fuzz/require.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/search.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using fuzzing::require;
  const std::string_view query(reinterpret_cast<const char*>(data), size);
  const glyph::SearchResults found = glyph::Search::ofCatalog().query(query, {5, {{"de", "fr"}}, {}});
  require(found.results.size() == std::min<std::size_t>(found.total, 5), "the limit or all are given");
  std::set<std::size_t> distinct;
  for (const glyph::SearchResult& result : found.results) {
    require(distinct.insert(result.index).second, "each is given once");
    const auto entity = glyph::buildInEntity(result.index);
    require(entity.has_value(), "each is in the list");
    std::size_t end = 0;
    for (const glyph::SearchRange& range : result.nameRanges) {
      require(range.begin >= end && range.end > range.begin, "ranges ascend");
      end = range.end;
    }
    require(end <= entity->name().size(), "ranges are in the name");
  }
  return 0;
}
