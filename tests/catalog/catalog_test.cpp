// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph {
namespace {

using testing::ElementsAre;

std::vector<AdditionalData> enrichments(std::initializer_list<std::pair<const char*, const char*>> all) {
  std::vector<AdditionalData> rows;
  for (const auto& [hex, name] : all) {
    rows.emplace_back().hex = hex;
    rows.back().betterName = name;
  }
  return rows;
}

TEST(Catalog, JoinsEachEntityWithTheFirstRecordOfItsHex) {
  const Glyphorium catalog;
  std::vector<ComputedEntity> records(4);
  records[0].hex = records[2].hex = "2122";
  records[1].hex = "00E9";
  records[3].hex = "0041";
  const auto joined = catalog.getEntitiesByEnriching(
      records, enrichments({{"00e9", "no"}, {"2122", "first"}, {"2122", "second"}, {"0009", "nobody"}}));
  ASSERT_EQ(joined.size(), 4u);
  EXPECT_EQ(joined[0].name(), "first");
  EXPECT_EQ(joined[2].name(), "first");
  EXPECT_FALSE(joined[1].additional);
  EXPECT_FALSE(joined[3].additional);
  for (const auto& none : {std::optional<std::vector<AdditionalData>>(), {std::vector<AdditionalData>()}}) {
    const auto plain = catalog.getEntitiesByEnriching(records, none);
    EXPECT_EQ(plain.size(), 4u);
    EXPECT_FALSE(plain[0].additional);
  }
  EXPECT_TRUE(catalog.getEntitiesByEnriching({}, enrichments({{"0041", ""}})).empty());
}

TEST(Catalog, ObservedFieldsPrintOneLineAChange) {
  Glyphorium catalog;
  RecordedDiagnostics diagnostics;
  catalog.allCustomEntities = std::vector<Entity>(3);
  catalog.allCustomEntities.modify([](auto& entities) {
    entities.pop_back();
    entities.pop_back();
  });
  catalog.allCustomEntities = catalog.allCustomEntities.get();
  catalog.allEntityGroupNamesWithCount = Glyphorium::GroupCounts();
  catalog.selectedGroupsHadChanged = false;
  EXPECT_THAT(diagnostics.take(),
              ElementsAre("didSet ↘ allCustomEntities '3'", "didSet ↘ allCustomEntities '1'",
                          "didSet ↘ allCustomEntities '1'", "didSet ↘ allEntityGroupNamesWithCount '0'",
                          "selectedGroupsHadChanged false"));
  Glyphorium copy = catalog;
  copy = catalog;
  EXPECT_EQ(copy.allCustomEntities->size(), 1u);
  EXPECT_THAT(diagnostics.take(), ElementsAre());
}

}  // namespace
}  // namespace glyph
