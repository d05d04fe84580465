// SPDX-License-Identifier: MIT
#include <future>
#include <set>
#include <thread>

#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/state/settings.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_fixture.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using testing::ElementsAre;
class CustomAddedEntities : public CatalogFixture {
 protected:
  static Names customCodes() { return Glyphorium().customAddedEntityUnicodes(); }
};

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

  // Adding a stored code again does not change the list, but all effects happen again.
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

TEST_F(CustomAddedEntities, CodesAreComparedWithTheirStoredSpelling) {
  Glyphorium catalog;
  catalog.setCustomAddedEntityUnicodes({"00E9", "00e9", "00e9"});
  EXPECT_EQ(hexCodes(catalog.allCustomEntities), Names({"00E9", "00e9", "00e9"}));
  catalog.removeCustomAddedEntity("00E9");
  EXPECT_EQ(stored("customAddedEntities"), SettingValue(Names({"00E9"})));
  catalog.modifyCustomAddedEntityUnicodes([](Names& codes) { codes.push_back("0041"); });
  EXPECT_EQ(catalog.customAddedEntityUnicodes(), Names({"00E9", "0041"}));

  // A code without a name gives no entity.
  catalog.setCustomAddedEntityUnicodes({"00e9", "4e01", "0085", "zzzz", "1F600", "0041,030a", "", "041"});
  const std::vector<Entity>& custom = catalog.allCustomEntities;
  ASSERT_THAT(hexCodes(custom), ElementsAre("00e9", "1F600"));
  EXPECT_EQ(custom[0].name(), "Latin Small Letter E With Acute");
  EXPECT_EQ(custom[0].computed.group, "custom");
  EXPECT_EQ(custom[0].additional->htmlNamed, "&eacute;");
}

// An index that stores the codes of its items. `whileIndexing` and `whileDeleting` simulate another process
// that acts during a request.
class SharedIndex final : public SearchableIndex {
 public:
  void indexItems(std::vector<SearchableItem> items, Completion completion) override {
    for (const SearchableItem& item : items) codes.insert(item.uniqueIdentifier);
    finish(whileIndexing, completion);
  }
  void deleteItems(std::vector<std::string> identifiers, Completion completion) override {
    for (const std::string& identifier : identifiers) codes.erase(identifier);
    finish(whileDeleting, completion);
  }
  void deleteAllItems(Completion) override {}
  bool waitUntilIdle(std::chrono::milliseconds, const Progress&) override { return true; }

  std::set<std::string> codes;
  std::function<void()> whileIndexing, whileDeleting;

 private:
  static void finish(std::function<void()>& other, const Completion& completion) {
    if (const auto once = std::exchange(other, nullptr)) once();
    if (completion) completion(std::nullopt);
  }
};

TEST_F(CustomAddedEntities, TheIndexMatchesTheStoredListDespiteOtherProcesses) {
  const auto shared = std::make_shared<SharedIndex>();
  setSearchableIndex(shared);
  Glyphorium catalog;
  catalog.addCustomAddedEntities({"2190", "2191", "2190", "2192"});
  EXPECT_EQ(customCodes(), (Names{"2190", "2191", "2192"}));
  EXPECT_THAT(shared->codes, ElementsAre("2190", "2191", "2192"));
  // Another process removes a character while this process adds it to the index.
  shared->whileIndexing = [&] { store("customAddedEntities", Names{"2190", "2192", "2193"}); };
  catalog.addCustomAddedEntity("2193");
  EXPECT_THAT(shared->codes, ElementsAre("2190", "2192", "2193"));
  // While this process removes a character, another process with an old list adds the same character to the
  // index.
  shared->whileDeleting = [&] { shared->codes.insert("2192"); };
  catalog.removeCustomAddedEntities({"2192", "2190"});
  EXPECT_THAT(shared->codes, ElementsAre("2193"));
  // Another process removes all characters from the list. While this process deletes them from the index, the
  // other process adds one of them to the list again.
  shared->whileIndexing = [&] {
    store("customAddedEntities", Names{});
    shared->whileDeleting = [&] { store("customAddedEntities", Names{"2193"}); };
  };
  catalog.removeCustomAddedEntity("2190");
  EXPECT_THAT(shared->codes, ElementsAre("2193"));
  // While the host's function runs, another process stores a list. The function is called again with that
  // list.
  int calls = 0;
  catalog.modifyCustomAddedEntityUnicodes([&](Names& codes) {
    if (++calls == 1) store("customAddedEntities", Names{"2194"});
    codes.push_back("2195");
  });
  EXPECT_EQ(customCodes(), (Names{"2194", "2195"}));
}

// A host may forward each callback to another thread and wait for that thread. So the library must not call
// callbacks while the settings are locked.
TEST_F(CustomAddedEntities, CallbacksCanWaitForAThreadThatReadsSettings) {
  class Waiting {
   public:
    void read() {
      // Use a promise instead of std::async(): the destructor of the future of std::async() would wait for
      // the thread.
      const auto done = std::make_shared<std::promise<void>>();
      std::thread([done] {
        settingsStore()->object("displayedGroups");
        done->set_value();
      }).detach();
      if (done->get_future().wait_for(std::chrono::seconds(5)) != std::future_status::ready) ++hung;
      ++calls;
    }
    int calls = 0, hung = 0;
  } waiting;
  const auto shared = std::make_shared<SharedIndex>();
  setSearchableIndex(shared);
  const TemporaryDirectory directory;
  for (const std::shared_ptr<SettingsStore>& one :
       {std::shared_ptr<SettingsStore>(std::make_shared<MemorySettingsStore>()),
        std::shared_ptr<SettingsStore>(
            std::make_shared<SqliteSettingsStore>(directory / "settings.sqlite"))}) {
    setSettingsStore(one);
    one->set("displayedGroups", Names{});
    one->set("customAddedEntities", RawJson{"5"});
    setDiagnosticsSink([&](std::string_view) { waiting.read(); });
    shared->whileDeleting = shared->whileIndexing = [&] { waiting.read(); };
    Glyphorium catalog;
    catalog.addCustomAddedEntity("2190");
    catalog.modifyCustomAddedEntityUnicodes([&](Names&) { waiting.read(); });
    setDiagnosticsSink(nullptr);
  }
  EXPECT_GT(waiting.calls, 10);
  EXPECT_EQ(waiting.hung, 0);
}

TEST_F(CustomAddedEntities, IndexItemsAreBuiltFromTheirEntities) {
  Entity plain = Unicode("0041").computedEntity().generateEntity();
  plain.computed.fallbackName = "Latin Capital Letter A";
  plain.computed.group = "latin basic";
  Entity enriched = Unicode("2192").computedEntity().generateEntity();
  enriched.computed.fallbackName = "Rightwards Arrow";
  AdditionalData& enrichment = enriched.additional.emplace();
  enrichment.advice = {{"en", "A note."}};
  enrichment.betterName = enrichment.htmlNamed = "";
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
