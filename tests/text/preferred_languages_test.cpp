// SPDX-License-Identifier: MIT
#include "glyphorium/text/preferred_languages.h"

#include <gmock/gmock.h>

#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using Languages = std::vector<std::string>;

TEST(PreferredLanguages, FollowTheRulesOfGettextWithoutRegions) {
  const struct {
    Languages languages;
    std::optional<std::string> lang = {}, language = {}, messages = {}, all = {};
  } cases[] = {{{"en"}},
               // The first variable that is not empty determines the locale.
               {{"de"}, "de_AT.UTF-8"},
               {{"fr"}, "de_DE", {}, "fr_FR"},
               {{"it"}, "de_DE", {}, "fr_FR", "it_IT"},
               {{"de"}, "de_DE", {}, {}, ""},
               // LANGUAGE replaces the locale, unless the locale is "C" or "POSIX".
               {{"pt", "fr"}, "de_DE", "pt_BR:pt:fr"},
               {{"de"}, "de_DE", ""},
               {{"sv"}, "de_DE", "::sv:C:fr"},
               {{"en"}, "de_DE", "fr", {}, "POSIX"},
               {{"en"}, {}, "fr"},
               {{"fr"}, "C.UTF-8", "fr"},
               {{"en"}, "C.UTF-8"},
               // Locale names in different forms, some of them malformed.
               {{"sr-Latn"}, "sr_RS.UTF-8@latin"},
               {{"zh-Hant"}, "ZH-hANT"},
               {{"en"}, "../../x"},
               {{"he", "id", "yi", "nb", "nn"}, "x", "iw:in:ji:no_NO:nn"},
               {{"sr-Latn", "ca", "es"}, "x", "sr_RS@latin.UTF-8:ca_ES@valencia:es_419"},
               {{"de", "fr"}, "x", "d:german:de_:_de:fr_:de_DE1:dé:@latin:.UTF-8:it_IT_x"}};
  for (const auto& row : cases) {
    const ScopedVariable variables[] = {
        {"LANG", row.lang}, {"LANGUAGE", row.language}, {"LC_MESSAGES", row.messages}, {"LC_ALL", row.all}};
    EXPECT_EQ(preferredLanguages(), row.languages) << row.lang.value_or("no LANG");
  }
}

TEST(PreferredLanguages, AreTheListOfTheHostAfterItIsSet) {
  const ScopedVariable locale("LC_ALL", "de_DE"), list("LANGUAGE", {});
  for (const Languages& own : {Languages{"pt-BR", "whatever it is"}, Languages{}}) {
    setPreferredLanguages(own);
    EXPECT_EQ(preferredLanguages(), own);
  }
  setPreferredLanguages(std::nullopt);
  EXPECT_EQ(preferredLanguages(), Languages{"de"});
}

}  // namespace
}  // namespace glyph
