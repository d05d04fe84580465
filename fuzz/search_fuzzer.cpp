// SPDX-License-Identifier: MIT
// Tests that every query that a user may type or paste gets an answer, and that a host can display all
// results.
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
  require(found.results.size() == std::min<std::size_t>(found.total, 5),
          "all results are returned, up to the limit");
  std::set<std::size_t> distinct;
  for (const glyph::SearchResult& result : found.results) {
    require(distinct.insert(result.index).second, "each result is returned only once");
    const auto entity = glyph::buildInEntity(result.index);
    require(entity.has_value(), "each result is an entity of the catalog");
    std::size_t end = 0;
    for (const glyph::SearchRange& range : result.nameRanges) {
      require(range.begin >= end && range.end > range.begin,
              "ranges are not empty, do not overlap and ascend");
      end = range.end;
    }
    require(end <= entity->name().size(), "ranges are within the name");
  }
  return 0;
}
