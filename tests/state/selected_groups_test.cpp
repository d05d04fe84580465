// SPDX-License-Identifier: MIT
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using SelectedGroups = CatalogFixture;

TEST_F(SelectedGroups, EachChangeNormalisesSavesAndRaisesTheFlagOnce) {
  using Change = void (*)(Glyphorium&);
  const struct {
    const char* what;
    Names before;
    Change change;
    Names after;
    bool saved = true;
  } cases[] = {
      {"custom once and in front",
       {},
       [](auto& g) {
         g.setSelectedGroups({"arrows", "custom", "armenian", "custom"});
       },
       {"custom", "arrows", "armenian"}},
      {"custom is not forced", {}, [](auto& g) { g.setSelectedGroups({"arrows"}); }, {"arrows"}},
      {"only the exact word moves",
       {},
       [](auto& g) {
         g.setSelectedGroups({"arrows", "Custom"});
       },
       {"arrows", "Custom"}},
      {"empty", {"arrows"}, [](auto& g) { g.setSelectedGroups({}); }, {}},
      {"add folds", {"custom"}, [](auto& g) { g.addSelectedGroup("Arrows"); }, {"custom", "arrows"}},
      {"add again",
       {"custom", "arrows"},
       [](auto& g) { g.addSelectedGroup("ARROWS"); },
       {"custom", "arrows"},
       false},
      {"add beside a capital",
       {"Arrows"},
       [](auto& g) { g.addSelectedGroup("arrows"); },
       {"Arrows", "arrows"}},
      {"add custom", {"arrows"}, [](auto& g) { g.addSelectedGroup("CUSTOM"); }, {"custom", "arrows"}},
      {"add unknown", {}, [](auto& g) { g.addSelectedGroup(""); }, {""}},
      {"add beyond ASCII", {}, [](auto& g) { g.addSelectedGroup("ÉTÉ"); }, {"été"}},
      {"remove folds both sides",
       {"arrows", "x", "Arrows"},
       [](auto& g) { g.removeSelectedGroup("ARROWS"); },
       {"x"}},
      {"remove nothing", {"x"}, [](auto& g) { g.removeSelectedGroup("arrows"); }, {"x"}},
      {"remove custom", {"custom", "x"}, [](auto& g) { g.removeSelectedGroup("custom"); }, {"x"}},
      {"modify",
       {"x"},
       [](auto& g) { g.modifySelectedGroups([](auto& l) { l.push_back("custom"); }); },
       {"custom", "x"}},
  };
  for (const auto& [what, before, change, after, saved] : cases) {
    Glyphorium catalog;
    store("displayedGroups", before);
    taken();
    change(catalog);
    EXPECT_EQ(stored("displayedGroups"), SettingValue(after)) << what;
    EXPECT_EQ(catalog.selectedGroupsHadChanged, saved) << what;
    EXPECT_EQ(taken(), saved ? Names({"saved displayedGroups", "selectedGroupsHadChanged true"}) : Names())
        << what;
  }
}

}  // namespace
}  // namespace glyph
