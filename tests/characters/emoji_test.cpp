// SPDX-License-Identifier: MIT
#include "glyphorium/characters/emoji.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/display.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/text/unicode_text.h"
#include "tests/support/catalog_fixture.h"

namespace glyph {
namespace {

using testing::Contains;
using testing::IsEmpty;

TEST(Emoji, EachHasANameIsFoundAndIsOneCluster) {
  std::map<std::string_view, int> kinds;
  std::set<std::string> names;
  for (std::size_t place = 0; place < emojiCount(); ++place) {
    const std::string_view text = emojiAt(place).text;
    ++kinds[emojiAt(place).kind];
    EXPECT_EQ(emojiPlace(text), place) << text;
    EXPECT_EQ(graphemeClusters(text).size(), 1U) << text;
    EXPECT_EQ(visibleSymbol(text), text);
    EXPECT_EQ(displayWidth(text), 2) << text;
    // Only sequences must have unique names. A single code point has its Unicode name, which a sequence may
    // have too: "man in tuxedo".
    if (emojiAt(place).kind != "single") {
      EXPECT_TRUE(names.insert(shownCharacterName(text)).second) << text;
    }
    for (const char* const language : {"en", "de", "fr", "it", "es"}) {
      const CharacterAnnotation annotation = annotationOf(text, language);
      EXPECT_TRUE(!annotation.name.empty() || text == "🔟") << text << language;
    }
  }
  EXPECT_THAT(
      kinds, testing::ElementsAre(std::pair("flag", 259), std::pair("keycap", 12), std::pair("modifier", 665),
                                  std::pair("single", 1400), std::pair("tag", 3), std::pair("zwj", 1614)));
  EXPECT_EQ(emojiAt(emojiCount()).text, "");
}

TEST(Emoji, NamesAndKeywords) {
  const struct {
    std::string_view text, name, german;
  } cases[] = {
      {"🇩🇪", "Flag: Germany", "Flagge: Deutschland"},
      {"🏴󠁧󠁢󠁳󠁣󠁴󠁿", "Flag: Scotland", "Flagge: Schottland"},
      {"🇨🇮", "Flag: Côte d’Ivoire", "Flagge: Côte d’Ivoire"},
      {"#️⃣", "Keycap: #", "Taste: #"},
      {"#⃣", "Keycap: #", "Taste: #"},
      {"👍🏽", "Thumbs Up: Medium Skin Tone", "Daumen hoch: mittlere Hautfarbe"},
      {"👨‍👩‍👧", "Family: Man, Woman, Girl", "Familie: Mann, Frau und Mädchen"},
      {"🫠", "Melting Face", "schmelzendes Gesicht"},
      {"漢", "Cjk Unified Ideograph-6F22", ""},
      {"\t", "Character Tabulation", ""},
      {"\uE000", "<private-use-E000>", ""},
      {"ab", "", ""},
      {"", "", ""},
      {"\xFF", "Replacement Character", ""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(shownCharacterName(one.text), one.name);
    EXPECT_EQ(annotationOf(one.text, "de").name, one.german) << one.name;
  }
  EXPECT_THAT(annotationOf("👍🏽", "en").keywords, Contains("thumb"));
  EXPECT_THAT(annotationOf("🏳️‍🌈", "de").keywords, Contains("Regenbogen"));
  EXPECT_THAT(annotationOf("👍", "nl").keywords, IsEmpty());
  EXPECT_EQ(supplementEntity("🇩🇪").computed.hex, "1f1e9,1f1ea");
}

TEST(Emoji, SkinTones) {
  const struct {
    std::string_view text;
    SkinTone tone;
    std::string_view expected;
  } cases[] = {
      {"👍", SkinTone::medium, "👍🏽"},
      {"👍🏿", SkinTone::none, "👍"},
      {"👍🏿", SkinTone::light, "👍🏻"},
      {"☝️", SkinTone::dark, "☝🏿"},
      {"☝🏿", SkinTone::none, "☝️"},
      {"🤝", SkinTone::mediumDark, "🤝🏾"},
      {"🫱🏻‍🫲🏿", SkinTone::none, "🤝"},
      {"👩🏻‍🤝‍👨🏿", SkinTone::medium, "👫🏽"},
      {"🧑‍💻", SkinTone::mediumLight, "🧑🏼‍💻"},
      {"🐱", SkinTone::dark, "🐱"},
      {"🇩🇪", SkinTone::dark, "🇩🇪"},
      {"→", SkinTone::dark, "→"},
      {"ab", SkinTone::dark, "ab"},
  };
  for (const auto& one : cases) EXPECT_EQ(withSkinTone(one.text, one.tone), one.expected) << one.text;
  EXPECT_EQ(emojiVariants(*emojiPlace("👍")).size(), 5U);
  EXPECT_EQ(emojiVariants(*emojiPlace("👍🏽")), emojiVariants(*emojiPlace("👍")));
  EXPECT_EQ(emojiVariants(*emojiPlace("🤝")).size(), 25U);
  EXPECT_THAT(emojiVariants(*emojiPlace("🏻")), IsEmpty());
}

using SkinTonePreference = CatalogFixture;

TEST_F(SkinTonePreference, IsStored) {
  EXPECT_EQ(preferredSkinTone(), SkinTone::none);
  EXPECT_TRUE(setPreferredSkinTone(SkinTone::mediumDark));
  EXPECT_EQ(stored("preferredSkinTone"), SettingValue("medium-dark"));
  EXPECT_EQ(preferredSkinTone(), SkinTone::mediumDark);
  for (const SettingValue& wrong : {SettingValue("green"), SettingValue(std::int64_t{3})}) {
    store("preferredSkinTone", wrong);
    EXPECT_EQ(preferredSkinTone(), SkinTone::none);
  }
}

TEST(Supplement, ContainsWhatTheCatalogLacks) {
  const std::vector<std::string> texts = supplementTexts();
  const std::set<std::string> all(texts.begin(), texts.end());
  EXPECT_EQ(all.size(), texts.size());
  for (const char* const wanted : {"🇩🇪", "🫠", "🪄", "水", "🪎"})
    EXPECT_TRUE(all.contains(wanted)) << wanted;
  for (const char* const other : {"→", "a", "\t", "가", "\uE000"}) EXPECT_FALSE(all.contains(other)) << other;
  for (const std::string& text : texts) EXPECT_FALSE(shownCharacterName(text).empty()) << text;
}

}  // namespace
}  // namespace glyph
