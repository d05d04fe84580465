// SPDX-License-Identifier: MIT
#include "glyphorium/state/settings.h"

#include "glyphorium/state/user_defaults.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using SettingsTest = CatalogFixture;

TEST_F(SettingsTest, WrongTypesReadAsDefaultsAndStayStored) {
  const Glyphorium catalog;
  const char* const keys[] = {"displayedGroups", "customAddedEntities", "useSpotlightExtension"};
  const std::optional<SettingValue> values[] = {
      std::nullopt, "arrows", std::int64_t{0}, 1.5, RawJson{"null"}, RawJson{R"(["a",1])"}, RawJson{"{}"}};
  for (const auto& value : values) {
    for (const char* const key : keys) {
      if (value) store(key, *value);
    }
    EXPECT_THAT(catalog.selectedGroups(), ElementsAre("custom"));
    EXPECT_THAT(catalog.customAddedEntityUnicodes(), ElementsAre());
    EXPECT_TRUE(EntityUserData::useSpotlightExtension());
    for (const char* const key : keys) EXPECT_EQ(stored(key), value);
  }
  for (const Names& groups : {Names(), Names{"Arrows", "custom", "Arrows"}}) {
    store("displayedGroups", groups);
    EXPECT_EQ(catalog.selectedGroups(), groups);
  }
}

TEST_F(SettingsTest, ChangesKeepAValueOfAWrongTypeUnderAnotherKey) {
  const SettingValue wrong[] = {RawJson{R"(["2192",5])"}, "arrows", RawJson{"no json"}};
  const std::pair<const char*, std::function<void(Glyphorium&)>> changes[] = {
      {"customAddedEntities", [](auto& catalog) { catalog.addCustomAddedEntity("2193"); }},
      {"displayedGroups", [](auto& catalog) { catalog.addSelectedGroup("dingbats"); }},
      {"useSpotlightExtension", [](auto&) { EntityUserData::modifyUseSpotlightExtension([](bool&) {}); }}};
  for (const auto& [key, change] : changes) {
    for (std::size_t i = 0; i < std::size(wrong); ++i) {
      store(key, wrong[i]);
      taken();
      Glyphorium catalog;
      change(catalog);
      const std::string name = std::string(key) + ".damaged" + (i == 0 ? "" : std::to_string(i + 1));
      EXPECT_EQ(stored(name), i == 2 ? SettingValue("no json") : wrong[i]) << name;
      EXPECT_THAT(taken(), testing::Contains(testing::HasSubstr("kept as '" + name + "'")).Times(1));
    }
  }
}

TEST_F(SettingsTest, EachChangeIsOneReadAndOneSynchronizedWrite) {
  EntityUserData::setUseSpotlightExtension(false);
  EXPECT_FALSE(EntityUserData::useSpotlightExtension());
  EntityUserData::modifyUseSpotlightExtension([](bool& use) { use = !use; });
  EXPECT_EQ(stored("useSpotlightExtension"), SettingValue(true));
  EXPECT_EQ(settings->reads, 2);
  EXPECT_EQ(settings->synchronized, 2);
  EXPECT_THAT(taken(), ElementsAre("saved useSpotlightExtension", "saved useSpotlightExtension"));
}

TEST_F(SettingsTest, VerboseLinesNameKeyAndValue) {
  saveToUserDefaults(Names{"a", "b"}, "displayedGroups", true);
  loadFromUserDefaults("displayedGroups", true);
  loadFromUserDefaults("nothing", true);
  loadFromUserDefaults("nothing", false);
  EXPECT_THAT(
      taken(),
      ElementsAre("saved displayedGroups",
                  EndsWith(" +0000\tUserDefaults: Saved key 'displayedGroups', object: '[\"a\",\"b\"]'"),
                  EndsWith(" +0000\tUserDefaults: Loaded key 'displayedGroups', object: '[\"a\",\"b\"]'"),
                  EndsWith(" +0000\tUserDefaults: Loaded key 'nothing' without results.")));
}

TEST_F(SettingsTest, EachChangeOfGroupsNormalisesSavesAndSetsTheFlagOnce) {
  using Change = std::function<void(Glyphorium&)>;
  const auto set = [](Names groups) -> Change { return [=](auto& g) { g.setSelectedGroups(groups); }; };
  const auto add = [](const char* group) -> Change { return [=](auto& g) { g.addSelectedGroup(group); }; };
  const auto remove = [](const char* group) -> Change {
    return [=](auto& g) { g.removeSelectedGroup(group); };
  };
  const Change append = [](auto& g) { g.modifySelectedGroups([](auto& l) { l.push_back("custom"); }); };
  const struct {
    Names before;
    Change change;
    Names after;
    bool saved = true;
  } cases[] = {
      // If the list contains "custom" in exactly this spelling, this name is stored once, at the beginning.
      {{}, set({"arrows", "custom", "armenian", "custom"}), {"custom", "arrows", "armenian"}},
      {{}, set({"arrows", "Custom"}), {"arrows", "Custom"}},
      {{"arrows"}, set({}), {}},
      {{"x"}, append, {"custom", "x"}},
      {{"arrows"}, add("CUSTOM"), {"custom", "arrows"}},
      // The name to add or remove is lower-cased. Stored names keep their case, but removing ignores their
      // case.
      {{"custom"}, add("Arrows"), {"custom", "arrows"}},
      {{"custom", "arrows"}, add("ARROWS"), {"custom", "arrows"}, false},
      {{"Arrows"}, add("arrows"), {"Arrows", "arrows"}},
      {{}, add(""), {""}},
      {{}, add("ÉTÉ"), {"été"}},
      {{"arrows", "x", "Arrows"}, remove("ARROWS"), {"x"}},
      {{"x"}, remove("arrows"), {"x"}},
      {{"custom", "x"}, remove("custom"), {"x"}},
  };
  for (const auto& [before, change, after, saved] : cases) {
    Glyphorium catalog;
    store("displayedGroups", before);
    taken();
    change(catalog);
    const auto what = testing::PrintToString(before) + " to " + testing::PrintToString(after);
    EXPECT_EQ(stored("displayedGroups"), SettingValue(after)) << what;
    EXPECT_EQ(catalog.selectedGroupsHadChanged, saved) << what;
    EXPECT_EQ(taken(), saved ? Names({"saved displayedGroups", "selectedGroupsHadChanged true"}) : Names())
        << what;
  }
}

TEST(PersistedKeys, AreFoundByTheirExactRawValues) {
  using Key = Glyphorium::UserInfluencedEntityKey;
  EXPECT_EQ(Key::fromRawValue("displayedGroups"), Key::displayedGroups);
  EXPECT_EQ(Key::fromRawValue("customAddedEntities"), Key::customAddedEntities);
  EXPECT_EQ(Key::fromRawValue("DisplayedGroups"), std::nullopt);
  const auto spotlight = EntityUserDataKey::fromRawValue("useSpotlightExtension");
  EXPECT_EQ(spotlight, EntityUserDataKey::useSpotlightExtension);
}

}  // namespace
}  // namespace glyph
