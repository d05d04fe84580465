// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "glyphorium/entity/codec.h"
#include "glyphorium/search/index_building.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

// Entities that are decoded one by one equal the entities of the configured catalog. The index that the
// library contains equals the index of a Search that a host builds over the configured catalog.

TEST(PreparedCatalog, EntitiesDecodedOneByOneEqualThoseOfTheConfiguredCatalog) {
  const std::vector<Entity>& entities = CatalogSearch::instance().entities;
  std::size_t enriched = 0;
  for (std::size_t place = 0; place < entities.size(); ++place) {
    const std::optional<Entity> entity = buildInEntity(place);
    ASSERT_TRUE(entity) << place;
    EXPECT_EQ(encode(entity->computed), encode(entities[place].computed));
    ASSERT_EQ(entity->additional.has_value(), entities[place].additional.has_value());
    if (!entity->additional) continue;
    EXPECT_EQ(encode(*entity->additional), encode(*entities[place].additional));
    ++enriched;
  }
  EXPECT_GT(enriched, 1000u);
  EXPECT_FALSE(buildInEntity(entities.size()));
  EXPECT_FALSE(buildInEntity(SIZE_MAX));
}

TEST(PreparedCatalog, IndexInTheLibraryEqualsANewlyBuiltIndex) {
  const search::IndexImage built = search::buildIndex(CatalogSearch::instance().entities);
  EXPECT_TRUE(std::ranges::equal(built, search::catalogIndexImage()));
  const auto found = Search::ofCatalog().query("leftwards double arrow", {1, {{"en"}}, {}}).results;
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(buildInEntity(found.front().index)->computed.hex, "21d0");
  EXPECT_EQ(Search::ofCatalog().byteCount(), 0u);
}

}  // namespace
}  // namespace glyph
