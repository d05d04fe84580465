// SPDX-License-Identifier: MIT
#include "glyphorium/state/settings.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using CustomAddedEntities = CatalogFixture;

TEST_F(CustomAddedEntities, AddingAndRemovingHaveTheirEffectsInOrder) {
  Glyphorium catalog;
  store("displayedGroups", Names{"arrows"});
  store("customAddedEntities", Names{"0041"});
  catalog.allCustomEntities = std::vector<Entity>{Unicode("0041").computedEntity().generateEntity()};
  taken();
  catalog.addCustomAddedEntity("21D0");
  EXPECT_THAT(taken(),
              ElementsAre("saved displayedGroups", "selectedGroupsHadChanged true", "deleted 0041",
                          "saved customAddedEntities", "didSet ↘ allCustomEntities '2'", "indexed 0041 21d0",
                          "contentHasChanged 2", "didSet ↘ allEntityGroupNamesWithCount '1'"));
  EXPECT_EQ(stored("displayedGroups"), SettingValue(Names({"custom", "arrows"})));
  EXPECT_EQ(stored("customAddedEntities"), SettingValue(Names({"0041", "21d0"})));
  EXPECT_EQ(catalog.allEntityGroupNamesWithCount->at("custom"), 2);

  // Adding a stored code again leaves the list unchanged, but has all effects again.
  catalog.addCustomAddedEntity("21d0");
  EXPECT_THAT(taken(), ElementsAre("deleted 0041 21d0", "saved customAddedEntities",
                                   "didSet ↘ allCustomEntities '2'", "indexed 0041 21d0",
                                   "contentHasChanged 2", "didSet ↘ allEntityGroupNamesWithCount '1'"));
  EXPECT_EQ(stored("customAddedEntities"), SettingValue(Names({"0041", "21d0"})));

  EntityUserData::setUseSpotlightExtension(false);
  taken();
  catalog.removeCustomAddedEntity("0041");
  catalog.removeCustomAddedEntity("21D0");
  EXPECT_THAT(taken(), ElementsAre("saved customAddedEntities", "didSet ↘ allCustomEntities '1'",
                                   "contentHasChanged 1", "didSet ↘ allEntityGroupNamesWithCount '1'",
                                   "saved customAddedEntities", "didSet ↘ allCustomEntities '0'",
                                   "contentHasChanged 0", "didSet ↘ allEntityGroupNamesWithCount '0'"));
  EXPECT_EQ(stored("displayedGroups"), SettingValue(Names({"custom", "arrows"})));
}

TEST_F(CustomAddedEntities, StoredCodesAreComparedAsStored) {
  Glyphorium catalog;
  catalog.setCustomAddedEntityUnicodes({"00E9", "00e9", "00e9"});
  EXPECT_EQ(hexCodes(catalog.allCustomEntities), Names({"00E9", "00e9", "00e9"}));
  catalog.removeCustomAddedEntity("00E9");
  EXPECT_EQ(stored("customAddedEntities"), SettingValue(Names({"00E9"})));
  catalog.modifyCustomAddedEntityUnicodes([](Names& codes) { codes.push_back("0041"); });
  EXPECT_EQ(catalog.customAddedEntityUnicodes(), Names({"00E9", "0041"}));

  // A code without a name does not become an entity.
  catalog.setCustomAddedEntityUnicodes({"00e9", "4e01", "0085", "zzzz", "1F600", "0041,030a", "", "041"});
  const std::vector<Entity>& custom = catalog.allCustomEntities;
  ASSERT_THAT(hexCodes(custom), ElementsAre("00e9", "1F600"));
  EXPECT_EQ(custom[0].name(), "Latin Small Letter E With Acute");
  EXPECT_EQ(custom[0].computed.group, "custom");
  EXPECT_EQ(custom[0].additional->htmlNamed, "&eacute;");
}

TEST_F(CustomAddedEntities, IndexItemsAreBuiltFromTheirEntities) {
  Entity plain = Unicode("0041").computedEntity().generateEntity();
  plain.computed.fallbackName = "Latin Capital Letter A";
  plain.computed.group = "latin basic";
  Entity enriched = Unicode("2192").computedEntity().generateEntity();
  enriched.computed.fallbackName = "Rightwards Arrow";
  enriched.additional.emplace().advice = {{"en", "A note."}};
  enriched.additional->betterName = enriched.additional->htmlNamed = "";
  toolKit().addToSpotlight({plain, enriched});
  ASSERT_EQ(index->indexed.size(), 2u);
  const Names keywords = {"A",       "Latin Capital Letter A",
                          "qv:",     "qv: ",
                          "entity",  "latin",
                          "capital", "letter",
                          "a",       "0041",
                          "65",      "&#x41;",
                          "&#65;",   "latin",
                          "basic",   "a",
                          ""};
  EXPECT_EQ(index->indexed[0],
            (SearchableItem{"0041", "org.glyphorium.Glyphorium", "Glyph", "A\tLatin Capital Letter A",
                            std::nullopt, "latin basic", keywords, "A"}));
  EXPECT_EQ(index->indexed[1].title, "→\tRightwards Arrow");
  EXPECT_EQ(index->indexed[1].comment, "A note.");
  EXPECT_EQ(index->indexed[1].keywords.back(), "");

  taken();
  toolKit().addToSpotlight({});
  toolKit().removeFromSpotlight({plain, enriched, plain});
  toolKit().removeFromSpotlight({});
  toolKit().resetSpotlight();
  EXPECT_THAT(taken(), ElementsAre("indexed", "deleted 0041 2192 0041", "deleted", "deleted all"));
}

}  // namespace
}  // namespace glyph
