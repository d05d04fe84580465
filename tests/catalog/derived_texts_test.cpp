// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/platform/preferred_languages.h"

namespace glyph {
namespace {

Entity stored(std::string_view table, std::string_view hex) {
  const Glyphorium catalog;
  for (Entity& entity :
       catalog.getEntitiesByEnriching(catalog.getComputedEntitiesFrom(embeddedText(table)->text).value(),
                                      catalog.getAdditionalDataFrom(additionalJson))) {
    if (entity.computed.hex == hex) return entity;
  }
  return {};
}

TEST(DerivedTexts, SearchStringsOfStoredEntities) {
  EXPECT_EQ(stored("latinBasicJson", "0041").searchString(),
            "latin capital letter a 0041 65 &#x41; &#65; latin basic a ");
  EXPECT_EQ(stored("letterlikeSymbolsJson", "2122").searchString(),
            "trade mark sign 2122 8482 &#x2122; &#8482; letterlike symbols ™ tm  ");
  EXPECT_EQ(stored("latinBasicJson", "0026").searchString(),
            "ampersand 0026 38 &#x26; &#38; latin basic & and et + &amp; ");
}

TEST(DerivedTexts, BetterNamesWinWhereTheyAreNotEmpty) {
  EXPECT_EQ(stored("latinBasicJson", "0027").name(), "False Apostrophe");
  Entity entity;
  entity.computed.fallbackName = "Fallback";
  EXPECT_EQ(entity.name(), "Fallback");
  entity.additional.emplace();
  EXPECT_EQ(entity.name(), "Fallback");
  entity.additional->betterName = "";
  EXPECT_EQ(entity.name(), "Fallback");
  entity.additional->betterName = "Better";
  EXPECT_EQ(entity.name(), "Better");
}

TEST(DerivedTexts, AdviceInTheFirstPreferredLanguageElseEnglish) {
  AdditionalData both;
  both.advice = {{"en", "English"}, {"de", "Deutsch"}, {"fr", ""}, {"DE", "never"}};
  AdditionalData german;
  german.advice = {{"de", "Deutsch"}};
  using Languages = std::vector<std::string>;
  const struct {
    Languages languages;
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

TEST(DerivedTexts, RecordsOfBareCodePoints) {
  const ComputedEntity record = Unicode("00e9").computedEntity();
  EXPECT_EQ(record.decimal, 233);
  EXPECT_EQ(record.htmlDecimal, "&#233;");
  EXPECT_EQ(record.symbol, "é");
  EXPECT_EQ(record.group + record.fallbackName, "");
  EXPECT_EQ(record.isSFSymbol, std::nullopt);
  const Entity entity = record.generateEntity();
  EXPECT_FALSE(entity.additional);
  EXPECT_EQ(entity.swiftDecimal(), "\\u{00e9}");
}

}  // namespace
}  // namespace glyph
