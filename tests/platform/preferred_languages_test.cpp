// SPDX-License-Identifier: MIT
#include "glyphorium/platform/preferred_languages.h"

#include <gmock/gmock.h>

#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using Languages = std::vector<std::string>;

TEST(PreferredLanguages, AreThoseOfGettextWithoutRegions) {
  const struct {
    Languages languages;
    std::optional<std::string> lang = {}, language = {}, messages = {}, all = {};
  } cases[] = {
      {{"en"}},
      // Which variable counts.
      {{"de"}, "de_AT.UTF-8"},
      {{"fr"}, "de_DE", {}, "fr_FR"},
      {{"it"}, "de_DE", {}, "fr_FR", "it_IT"},
      {{"de"}, "de_DE", {}, {}, ""},
      // LANGUAGE: instead of the locale, except in the bare C locale.
      {{"pt", "fr"}, "de_DE", "pt_BR:pt:fr"},
      {{"de"}, "de_DE", ""},
      {{"sv"}, "de_DE", "::sv:C:fr"},
      {{"en"}, "de_DE", "C"},
      {{"en"}, "C", "fr"},
      {{"en"}, "de_DE", "fr", {}, "POSIX"},
      {{"en"}, {}, "fr"},
      {{"fr"}, "C.UTF-8", "fr"},
      {{"en"}, "C.UTF-8"},
      // Forms of a locale name.
      {{"sr-Latn"}, "sr_RS.UTF-8@latin"},
      {{"sr-Latn"}, "sr_RS@latin.UTF-8"},
      {{"ca"}, "ca_ES@valencia"},
      {{"zh-Hant"}, "ZH-hANT"},
      {{"es"}, "es_419"},
      {{"he", "id", "yi", "nb", "nn"}, "x", "iw:in:ji:no_NO:nn"},
      // No locale names.
      {{"en"}, "../../x"},
      {{"en"}, "german"},
      {{"de", "fr"}, "x", "d:de_:_de:fr_:de_DE1:dé:@latin:.UTF-8:it_IT_x"},
  };
  for (const auto& row : cases) {
    const ScopedVariable variables[] = {
        {"LANG", row.lang}, {"LANGUAGE", row.language}, {"LC_MESSAGES", row.messages}, {"LC_ALL", row.all}};
    EXPECT_EQ(preferredLanguages(), row.languages) << row.lang.value_or("no LANG");
  }
}

TEST(PreferredLanguages, AreTheHostsOwnOnceSet) {
  const ScopedVariable variables[] = {
      {"LANG", "de_DE"}, {"LANGUAGE", {}}, {"LC_MESSAGES", {}}, {"LC_ALL", {}}};
  for (const Languages& own : {Languages{"pt-BR", "whatever it is"}, Languages{}}) {
    setPreferredLanguages(own);
    EXPECT_EQ(preferredLanguages(), own);
  }
  setPreferredLanguages(std::nullopt);
  EXPECT_EQ(preferredLanguages(), Languages{"de"});
}

}  // namespace
}  // namespace glyph
