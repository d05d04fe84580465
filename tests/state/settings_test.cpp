// SPDX-License-Identifier: MIT
#include "glyphorium/state/settings.h"

#include "glyphorium/state/user_defaults_internal.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using SettingsTest = CatalogFixture;

TEST_F(SettingsTest, WrongTypesReadAsDefaultsAndStayStored) {
  const Glyphorium catalog;
  EXPECT_THAT(catalog.selectedGroups(), ElementsAre("custom"));
  EXPECT_THAT(catalog.customAddedEntityUnicodes(), ElementsAre());
  EXPECT_TRUE(EntityUserData::useSpotlightExtension());
  EXPECT_FALSE(stored("displayedGroups"));  // no read writes its default

  const SettingValue wrongTypes[] = {"arrows",        std::int64_t{0},       1.5,
                                     RawJson{"null"}, RawJson{R"(["a",1])"}, RawJson{"{}"}};
  for (const SettingValue& wrong : wrongTypes) {
    for (const char* const key : {"displayedGroups", "customAddedEntities", "useSpotlightExtension"})
      store(key, wrong);
    EXPECT_THAT(catalog.selectedGroups(), ElementsAre("custom"));
    EXPECT_THAT(catalog.customAddedEntityUnicodes(), ElementsAre());
    EXPECT_TRUE(EntityUserData::useSpotlightExtension());
    EXPECT_EQ(stored("displayedGroups"), wrong);
  }
  store("displayedGroups", Names());
  EXPECT_THAT(catalog.selectedGroups(), ElementsAre());
  store("displayedGroups", Names{"Arrows", "custom", "Arrows"});
  EXPECT_THAT(catalog.selectedGroups(), ElementsAre("Arrows", "custom", "Arrows"));
}

TEST_F(SettingsTest, SpotlightChoiceIsOneReadAndOneSynchronizedWrite) {
  EntityUserData::setUseSpotlightExtension(false);
  EXPECT_FALSE(EntityUserData::useSpotlightExtension());
  EXPECT_EQ(settings->synchronized, 1);
  settings->reads = 0;
  EntityUserData::modifyUseSpotlightExtension([](bool& use) { use = !use; });
  EXPECT_EQ(settings->reads, 1);
  EXPECT_EQ(stored("useSpotlightExtension"), SettingValue(true));
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

TEST(PersistedKeys, AreMadeOfTheirExactRawValues) {
  using Key = Glyphorium::UserInfluencedEntityKey;
  EXPECT_EQ(Key::fromRawValue("displayedGroups"), Key::displayedGroups);
  EXPECT_EQ(Key::fromRawValue("customAddedEntities"), Key::customAddedEntities);
  for (const char* const none : {"", "DisplayedGroups", "displayedGroups ", "useSpotlightExtension"}) {
    EXPECT_EQ(Key::fromRawValue(none), std::nullopt);
  }
  EXPECT_EQ(EntityUserDataKey::fromRawValue("useSpotlightExtension"),
            EntityUserDataKey::useSpotlightExtension);
  EXPECT_EQ(EntityUserDataKey::fromRawValue("displayedGroups"), std::nullopt);
}

}  // namespace
}  // namespace glyph
