// SPDX-License-Identifier: MIT
#include "glyphorium/state/selected_entities.h"

#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;

class SelectedEntitiesTest : public CatalogFixture {
 protected:
  static Entity entity(const std::string& hex, const std::string& group, std::int64_t decimal = 0) {
    Entity one;
    one.computed.hex = hex;
    one.computed.group = group;
    one.computed.decimal = decimal ? decimal : toolKit().getDecimal(hex);
    return one;
  }

  // "hex group" of what the builder selects.
  Names built(Glyphorium& catalog, const Names& groups) {
    store("displayedGroups", groups);
    catalog.setSelectedEntities();
    Names result;
    for (const Entity& one : selectedEntities().get())
      result.push_back(one.computed.hex + " " + one.computed.group);
    return result;
  }
};

TEST_F(SelectedEntitiesTest, KeepsEachCodePointOfTheEarliestGroupInCodePointOrder) {
  Glyphorium catalog;
  catalog.allCustomEntities = std::vector<Entity>{
      entity("2190", "custom"), entity("00e9", "Latin"), entity("00E9", "latin"), entity("0041", "latin"),
      entity("2190", "arrows"), entity("0041", "LATIN"), entity("2192", "arrows"), entity("1f600", "emoji"),
      // dropped whatever their groups: forbidden ones in any case, not displayable ones in lower case only
      entity("534D", "latin"), entity("5350", "latin"), entity("0FD5", "latin"), entity("2028", "latin"),
      entity("200e", "latin"), entity("27CE", "latin")};
  const struct {
    Names groups, entities;
  } cases[] = {
      {{"custom", "arrows"}, {"2190 custom", "2192 arrows"}},
      {{"arrows", "custom"}, {"2190 arrows", "2192 arrows"}},
      {{"ARROWS", "Arrows"}, {"2190 arrows", "2192 arrows"}},
      {{"emoji", "arrows"}, {"2190 arrows", "2192 arrows", "1f600 emoji"}},
      {{"laTin"}, {"0041 latin", "00e9 Latin", "00E9 latin", "27CE latin", "534D latin"}},
      {{"no such group", ""}, {}},
      {{}, {}},
  };
  for (const auto& [groups, entities] : cases) EXPECT_EQ(built(catalog, groups), entities);
  catalog.forbiddenUnicodes = {"2192", "1F600"};
  EXPECT_THAT(built(catalog, {"arrows", "emoji"}), ElementsAre("2190 arrows"));
}

TEST_F(SelectedEntitiesTest, AnEmptyCatalogAsksTheStoreNothing) {
  Glyphorium catalog;
  catalog.setSelectedEntities();
  EXPECT_EQ(settings->reads, 0);
  EXPECT_THAT(taken(), ElementsAre("contentHasChanged 0"));
}

TEST_F(SelectedEntitiesTest, EveryAssignmentPostsOnce) {
  selectedEntities() = std::vector<Entity>(2);
  selectedEntities() = selectedEntities().get();
  selectedEntities().modify([](auto& entities) { entities.clear(); });
  toolKit().sendContentHasChangedNotification();
  EXPECT_THAT(taken(), ElementsAre("contentHasChanged 2", "contentHasChanged 2", "contentHasChanged 0",
                                   "contentHasChanged 0"));
  EXPECT_EQ(filteredEntities(), std::nullopt);
}

TEST_F(SelectedEntitiesTest, CopiesReachTheClipboardAndAreAnnounced) {
  Names announced;
  const auto copies = NotificationCenter::defaultCenter().addObserver(
      notificationName::entityCopied,
      [&](const Notification& copy) { announced.push_back(copy.object.value()); });
  toolKit().writeToPasteboard("→");
  toolKit().writeToPasteboard("→", "");
  toolKit().writeToPasteboard("&rarr;", "arrow");
  toolKit().writeToPasteboard("");
  EXPECT_THAT(announced, ElementsAre("→", "", "arrow", ""));
  EXPECT_EQ(clipboard->plainText(), "");
  EXPECT_THAT(taken(), ElementsAre());
}

}  // namespace
}  // namespace glyph
