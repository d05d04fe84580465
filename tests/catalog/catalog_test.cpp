// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"

#include <gmock/gmock.h>

#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/text/preferred_languages.h"

namespace glyph {
namespace {

using testing::ElementsAre;

TEST(Catalog, JoinsEachEntityWithTheFirstRecordOfItsHexCode) {
  const Glyphorium catalog;
  std::vector<ComputedEntity> records(4);
  records[0].hex = records[2].hex = "2122";
  records[1].hex = "00E9";
  records[3].hex = "0041";
  std::vector<AdditionalData> enrichment(4);
  enrichment[0].hex = "00e9";
  enrichment[1].hex = enrichment[2].hex = "2122";
  enrichment[1].betterName = "first";
  enrichment[2].betterName = "second";
  const auto joined = [&](const std::optional<std::vector<AdditionalData>>& rows) {
    std::vector<std::string> names;
    for (const Entity& entity : catalog.getEntitiesByEnriching(records, rows)) {
      names.push_back(entity.additional ? entity.name() : "none");
    }
    return names;
  };
  EXPECT_THAT(joined(enrichment), ElementsAre("first", "none", "first", "none"));
  EXPECT_THAT(joined(std::nullopt), ElementsAre("none", "none", "none", "none"));
}

TEST(Catalog, DerivesTextsFromStoredRows) {
  const Glyphorium catalog;
  const struct {
    std::string_view table, hex, name, searchString;
  } cases[] = {
      {"latinBasicJson", "0041", "Latin Capital Letter A",
       "latin capital letter a 0041 65 &#x41; &#65; latin basic a "},
      {"letterlikeSymbolsJson", "2122", "Trade Mark Sign",
       "trade mark sign 2122 8482 &#x2122; &#8482; letterlike symbols ™ tm  "},
      {"latinBasicJson", "0026", "Ampersand", "ampersand 0026 38 &#x26; &#38; latin basic & and et + &amp; "},
      {"latinBasicJson", "0027", "False Apostrophe", ""}};
  const auto enrichment = catalog.getAdditionalDataFrom(additionalJson);
  for (const auto& [table, hex, name, searchString] : cases) {
    const auto records = catalog.getComputedEntitiesFrom(embeddedText(table)->text).value();
    for (const Entity& entity : catalog.getEntitiesByEnriching(records, enrichment)) {
      if (entity.computed.hex != hex) continue;
      EXPECT_EQ(entity.name(), name);
      if (!searchString.empty()) {
        EXPECT_EQ(entity.searchString(), searchString);
      }
    }
  }
  Entity entity = Unicode("00e9").computedEntity().generateEntity();
  EXPECT_FALSE(entity.additional);
  EXPECT_EQ(entity.swiftDecimal(), "\\u{00e9}");
  entity.computed.fallbackName = "Fallback";
  entity.additional.emplace().betterName = "";
  EXPECT_EQ(entity.name(), "Fallback");
}

TEST(Catalog, ReturnsTheNoteInTheFirstPreferredLanguageElseInEnglish) {
  AdditionalData both;
  both.advice = {{"en", "English"}, {"de", "Deutsch"}, {"fr", ""}, {"DE", "never"}};
  AdditionalData german;
  german.advice = {{"de", "Deutsch"}};
  const struct {
    std::vector<std::string> languages;
    const AdditionalData& data;
    std::optional<std::string> note;
  } cases[] = {{{"de", "en"}, both, "Deutsch"},         {{"DE"}, both, "Deutsch"},
               {{"de-DE", "de"}, both, "English"},      {{"fr"}, both, ""},
               {{"it", "de"}, both, "English"},         {{"en"}, german, std::nullopt},
               {{"it"}, german, std::nullopt},          {{}, both, std::nullopt},
               {{"de"}, AdditionalData(), std::nullopt}};
  for (const auto& [languages, data, note] : cases) {
    setPreferredLanguages(languages);
    EXPECT_EQ(data.localizedAdvice(), note);
  }
  setPreferredLanguages(std::nullopt);
}

}  // namespace
}  // namespace glyph
