// SPDX-License-Identifier: MIT
#include "glyphorium/state/selected_entities.h"

#include <algorithm>
#include <thread>
#include <unordered_map>

#include "glyphorium/catalog/fixed_lists.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/services/pasteboard/desktop_pasteboard.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_figures.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;

using Configure = CatalogFixture;
using SelectedEntitiesTest = CatalogFixture;

TEST_F(Configure, FillsTheCatalogTheSameWayEachTime) {
  Glyphorium catalog;
  catalog.configure();  // no groups are stored, so only the group "custom" is displayed
  const auto change = [](const std::string& field, std::size_t count) {
    return "didSet ↘ " + field + " '" + std::to_string(count) + "'";
  };
  EXPECT_THAT(taken(),
              ElementsAre(change("allBuildInEntities", figures::entities), change("allCustomEntities", 0),
                          change("allEntityGroupNamesWithCount", figures::groups), "contentHasChanged 0"));
  EXPECT_FALSE(stored("displayedGroups"));

  store("displayedGroups", Names{"custom", "SF symbols", "arrows"});
  store("customAddedEntities", Names{"2190"});
  for (int run = 0; run < 2; ++run) {
    catalog.configure();
    EXPECT_THAT(taken(),
                ElementsAre(change("allBuildInEntities", figures::entities), change("allCustomEntities", 1),
                            change("allEntityGroupNamesWithCount", figures::groups + 1),
                            "contentHasChanged " + std::to_string(figures::arrows + figures::sfSymbols)));
    EXPECT_EQ(catalog.buildInEntities().front().computed.hex, "0020");
    EXPECT_EQ(catalog.buildInEntities().back().computed.hex, "1006e2");
    EXPECT_EQ(selectedEntities()->front().computed.group, "custom");
    EXPECT_EQ(catalog.allEntityGroupNamesWithCount->at("custom"), 1);
    const std::vector<std::string>& groups = allBuildInEntityGroups();
    ASSERT_EQ(groups.size(), figures::groups + 1);
    EXPECT_THAT(Names(groups.begin(), groups.begin() + 6),
                ElementsAre("custom", "digital typography (latin)", "design inspiration", "emoji",
                            "SF Symbols", "aegean numbers"));
    EXPECT_EQ(groups.back(), "yijing hexagram symbols");
  }
  store("customAddedEntities", Names());
  catalog.configure();
  EXPECT_EQ(catalog.allEntityGroupNamesWithCount->count("custom"), 0u);
  EXPECT_EQ(allBuildInEntityGroups().front(), "custom");

  // The count of each group equals the number of rows in its table.
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) {
      EXPECT_EQ(catalog.allEntityGroupNamesWithCount->at(std::string(text.group)), text.rows);
    }
  }
}

TEST(Globals, AreCreatedOnceWhenSeveralThreadsUseThemFirst) {
  using Global = const void* (*)();
  const Global globals[] = {
      []() -> const void* { return &glyphorium(); }, []() -> const void* { return &selectedEntities(); },
      []() -> const void* { return &toolKit(); }, []() -> const void* { return settingsStore().get(); },
      []() -> const void* { return searchableIndex().get(); }};
  std::vector<std::thread> threads;
  std::vector<const void*> seen(20);
  for (std::size_t i = 0; i < seen.size(); ++i) {
    threads.emplace_back([&, i] { seen[i] = globals[i % 5](); });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 0; i < seen.size(); ++i) EXPECT_EQ(seen[i], globals[i % 5]());
}

TEST_F(SelectedEntitiesTest, KeepsTheEntityOfTheEarliestGroupInCodePointOrder) {
  Glyphorium catalog;
  // Each text is the hex code and the group of an entity. The hex codes of the last five entities are in the
  // two lists of code points that are never shown. Forbidden code points are dropped whether their digits are
  // in upper or lower case, code points that cannot be displayed only if they are in lower case.
  std::vector<Entity> entities;
  for (const std::string text :
       {"2190 custom", "00e9 Latin", "00E9 latin", "0041 latin", "2190 arrows", "0041 LATIN", "2192 arrows",
        "1f600 emoji", "534D latin", "5350 latin", "0FD5 latin", "2028 latin", "200e latin", "27CE latin"}) {
    const std::size_t space = text.find(' ');
    entities.push_back(Unicode(text.substr(0, space)).computedEntity().generateEntity());
    entities.back().computed.group = text.substr(space + 1);
  }
  catalog.allCustomEntities = entities;
  const auto built = [&](const Names& groups) {
    store("displayedGroups", groups);
    catalog.setSelectedEntities();
    Names result;
    for (const Entity& one : *selectedEntities()) {
      result.push_back(one.computed.hex + " " + one.computed.group);
    }
    return result;
  };
  const struct {
    Names groups, found;
  } cases[] = {
      {{"custom", "arrows"}, {"2190 custom", "2192 arrows"}},
      {{"arrows", "custom"}, {"2190 arrows", "2192 arrows"}},
      {{"ARROWS", "Arrows"}, {"2190 arrows", "2192 arrows"}},
      {{"emoji", "arrows"}, {"2190 arrows", "2192 arrows", "1f600 emoji"}},
      {{"laTin"}, {"0041 latin", "00e9 Latin", "00E9 latin", "27CE latin", "534D latin"}},
      {{"no such group", ""}, {}},
      {{}, {}},
  };
  for (const auto& [groups, found] : cases) EXPECT_EQ(built(groups), found);
  catalog.forbiddenUnicodes = {"2192", "1F600"};
  EXPECT_THAT(built({"arrows", "emoji"}), ElementsAre("2190 arrows"));
}

// Builds the displayed list in the simplest way, for comparison with the library's list.
std::vector<std::string> builtByTheRules(const Glyphorium& catalog) {
  std::vector<const Entity*> kept;
  std::unordered_map<std::string, std::size_t> places;
  std::vector<const Entity*> all;
  for (const Entity& entity : catalog.buildInEntities()) all.push_back(&entity);
  for (const Entity& entity : catalog.allCustomEntities) all.push_back(&entity);
  const std::vector<std::string> groups = catalog.selectedGroups();
  const auto rank = [&](const Entity& entity) {
    return std::find(groups.begin(), groups.end(), lowercased(entity.computed.group)) - groups.begin();
  };
  for (const Entity* const entity : all) {
    const std::string hex = entity->computed.hex;
    const auto same = [&](const std::string& hidden) { return lowercased(hidden) == lowercased(hex); };
    if (rank(*entity) == std::ssize(groups) || std::ranges::any_of(catalog.forbiddenUnicodes, same) ||
        std::ranges::count(initialNotDisplayableUnicodes, std::string_view(hex)) > 0)
      continue;
    const auto [place, isNew] = places.try_emplace(hex, kept.size());
    if (isNew) kept.push_back(entity);
    if (rank(*entity) < rank(*kept[place->second])) kept[place->second] = entity;
  }
  std::stable_sort(kept.begin(), kept.end(), [](const Entity* a, const Entity* b) {
    return a->computed.decimal < b->computed.decimal;
  });
  std::vector<std::string> texts;
  for (const Entity* const entity : kept)
    texts.push_back(entity->computed.hex + " " + entity->computed.group);
  return texts;
}

TEST_F(SelectedEntitiesTest, TheListOfAConfiguredCatalogFollowsTheSameRules) {
  Glyphorium catalog;
  catalog.configure();
  Names everyGroup;
  for (const std::string& group : allBuildInEntityGroups()) everyGroup.push_back(lowercased(group));
  const Names reversed(everyGroup.rbegin(), everyGroup.rend());
  std::vector<Entity> custom;
  for (const char* const hex : {"1F600", "0041", "2190", "0041", "2028", "5350", "21d0", "00e9"}) {
    custom.push_back(Unicode(hex).computedEntity().generateEntity());
    custom.back().computed.group = hex[0] == '2' ? "arrows" : "custom";
  }
  custom.back().computed.decimal = 0x10FFFF;  // a host may give an entity any number
  const Names forbidden[] = {{"5350"}, {"00E9", "41", "00041", "1f600", "no code"}};
  for (const Names& groups : {everyGroup, reversed, {"emoji", "custom", "arrows"}, {"latin basic"}}) {
    for (const auto& list : {std::vector<Entity>(), custom}) {
      for (const Names& hidden : forbidden) {
        store("displayedGroups", groups);
        catalog.forbiddenUnicodes = hidden;
        catalog.allCustomEntities = list;
        catalog.setSelectedEntities();
        Names built;
        for (const Entity& entity : *selectedEntities())
          built.push_back(entity.computed.hex + " " + entity.computed.group);
        EXPECT_EQ(built, builtByTheRules(catalog)) << groups.front() << " " << list.size() << hidden.size();
      }
    }
  }
}

TEST_F(SelectedEntitiesTest, AnEmptyCatalogDoesNotReadTheSettings) {
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

TEST_F(SelectedEntitiesTest, CopyingSetsTheClipboardAndPostsANotification) {
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
  setPasteboard(nullptr);
  EXPECT_NE(dynamic_cast<DesktopPasteboard*>(pasteboard().get()), nullptr);
}

}  // namespace
}  // namespace glyph
