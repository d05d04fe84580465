// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "glyphorium/search/index_building.h"
#include "glyphorium/search/supplement_indexing.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

// The prepared index in the library must equal the index that is built from the configured catalog at run
// time.
TEST(PreparedCatalog, IndexInTheLibraryEqualsANewlyBuiltIndex) {
  const search::IndexImage built =
      search::buildIndex(CatalogSearch::instance().entities, search::ShownNames::elsewhere);
  EXPECT_TRUE(std::ranges::equal(built, search::catalogIndexImage()));
  EXPECT_TRUE(std::ranges::equal(search::buildSupplementIndex(), search::supplementIndexImage()));
  const auto found = Search::ofCatalog().query("leftwards double arrow", {1, {{"en"}}, {}}).results;
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(buildInEntity(found.front().index)->computed.hex, "21d0");
  EXPECT_EQ(Search::ofCatalog().byteCount(), 0u);
}

}  // namespace
}  // namespace glyph
