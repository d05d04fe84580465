// SPDX-License-Identifier: MIT
#include <thread>

#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using Configure = CatalogFixture;

TEST_F(Configure, FillsTheCatalogTheSameWayEachTime) {
  store("displayedGroups", Names{"custom", "SF symbols", "arrows"});
  store("customAddedEntities", Names{"2190"});
  Glyphorium catalog;
  for (int run = 0; run < 2; ++run) {
    catalog.configure();
    EXPECT_THAT(taken(),
                ElementsAre("didSet ↘ allBuildInEntities '17532'", "didSet ↘ allCustomEntities '1'",
                            "didSet ↘ allEntityGroupNamesWithCount '113'", "contentHasChanged 1195"));
    EXPECT_EQ(catalog.buildInEntities().front().computed.hex, "0020");
    EXPECT_EQ(catalog.buildInEntities().back().computed.hex, "1006e2");
    EXPECT_EQ(selectedEntities()->front().computed.group, "custom");
    EXPECT_EQ(catalog.allEntityGroupNamesWithCount->at("custom"), 1);
    const std::vector<std::string>& groups = allBuildInEntityGroups();
    ASSERT_EQ(groups.size(), 113u);
    EXPECT_THAT(Names(groups.begin(), groups.begin() + 8),
                ElementsAre("custom", "digital typography (latin)", "design inspiration", "emoji",
                            "SF Symbols", "aegean numbers", "alphabetic presentation forms", "arabic"));
    EXPECT_THAT(Names(groups.end() - 3, groups.end()),
                ElementsAre("yi radicals", "yi syllables", "yijing hexagram symbols"));
  }
  store("customAddedEntities", Names());
  catalog.configure();
  EXPECT_EQ(catalog.allEntityGroupNamesWithCount->count("custom"), 0u);
  EXPECT_EQ(allBuildInEntityGroups().front(), "custom");

  // The counts are those of the tables, and every entity carries the first enrichment record of its code
  // point.
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) {
      EXPECT_EQ(catalog.allEntityGroupNamesWithCount->at(std::string(text.group)), text.rows);
    }
  }
  std::size_t tradeMarks = 0;
  for (const Entity& entity : catalog.buildInEntities()) {
    if (entity.computed.hex != "2122") continue;
    ++tradeMarks;
    EXPECT_THAT(entity.additional->searchTerms.value(), ElementsAre("tm"));
  }
  EXPECT_EQ(tradeMarks, 2u);
}

TEST_F(Configure, AFreshUserSeesOnlyAddedCharacters) {
  Glyphorium catalog;
  catalog.configure();
  EXPECT_THAT(taken(), ElementsAre("didSet ↘ allBuildInEntities '17532'", "didSet ↘ allCustomEntities '0'",
                                   "didSet ↘ allEntityGroupNamesWithCount '112'", "contentHasChanged 0"));
  EXPECT_FALSE(stored("displayedGroups"));
}

TEST(Globals, AreCreatedOnceByWhicheverThreadComesFirst) {
  std::vector<std::thread> threads;
  std::vector<const void*> seen(16);
  for (std::size_t i = 0; i < seen.size(); ++i) {
    threads.emplace_back([&seen, i] {
      // A thread touches all, each a different one first.
      const auto touch = [](std::size_t which) -> const void* {
        switch (which % 8) {
          case 0:
            return &glyphorium();
          case 1:
            return &selectedEntities();
          case 2:
            return &filteredEntities();
          case 3:
            return &toolKit();
          case 4:
            return &allBuildInEntityGroups();
          case 5:
            return &NotificationCenter::defaultCenter();
          case 6:
            return settingsStore().get();
          default:
            return searchableIndex().get();
        }
      };
      for (std::size_t k = 0; k < 8; ++k) touch(i + k);
      seen[i] = touch(i % 4);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (std::size_t i = 4; i < seen.size(); ++i) EXPECT_EQ(seen[i], seen[i - 4]);
}

}  // namespace
}  // namespace glyph
