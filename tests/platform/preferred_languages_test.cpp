// SPDX-License-Identifier: MIT
#include "glyphorium/platform/preferred_languages.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <map>

namespace glyph {
namespace {

using Environment = std::map<std::string, std::string>;
using Languages = std::vector<std::string>;

constexpr const char* variables[] = {"LC_ALL", "LC_MESSAGES", "LANG", "LANGUAGE"};

class PreferredLanguages : public testing::Test {
 protected:
  PreferredLanguages() {
    for (const char* const name : variables) {
      if (const char* const value = std::getenv(name)) saved_[name] = value;
    }
  }
  ~PreferredLanguages() override {
    use(saved_);
    setPreferredLanguages(std::nullopt);
  }
  static void use(const Environment& environment) {
    for (const char* const name : variables) unsetenv(name);
    for (const auto& [name, value] : environment) setenv(name.c_str(), value.c_str(), 1);
  }

 private:
  Environment saved_;
};

TEST_F(PreferredLanguages, AreThoseOfGettextWithoutRegions) {
  const struct {
    Environment environment;
    Languages languages;
  } cases[] = {
      {{}, {"en"}},
      // Which variable counts.
      {{{"LANG", "de_AT.UTF-8"}}, {"de"}},
      {{{"LANG", "de_DE"}, {"LC_MESSAGES", "fr_FR"}}, {"fr"}},
      {{{"LANG", "de_DE"}, {"LC_MESSAGES", "fr_FR"}, {"LC_ALL", "it_IT"}}, {"it"}},
      {{{"LANG", "de_DE"}, {"LC_ALL", ""}}, {"de"}},
      // LANGUAGE: instead of the locale, except in the bare C locale.
      {{{"LANG", "de_DE"}, {"LANGUAGE", "pt_BR:pt:fr"}}, {"pt", "fr"}},
      {{{"LANG", "de_DE"}, {"LANGUAGE", ""}}, {"de"}},
      {{{"LANG", "de_DE"}, {"LANGUAGE", "::sv:C:fr"}}, {"sv"}},
      {{{"LANG", "de_DE"}, {"LANGUAGE", "C"}}, {"en"}},
      {{{"LANG", "C"}, {"LANGUAGE", "fr"}}, {"en"}},
      {{{"LANG", "de_DE"}, {"LC_ALL", "POSIX"}, {"LANGUAGE", "fr"}}, {"en"}},
      {{{"LANGUAGE", "fr"}}, {"en"}},
      {{{"LANG", "C.UTF-8"}, {"LANGUAGE", "fr"}}, {"fr"}},
      {{{"LANG", "C.UTF-8"}}, {"en"}},
      // Forms of a locale name.
      {{{"LANG", "sr_RS@latin"}}, {"sr-Latn"}},
      {{{"LANG", "sr_RS.UTF-8@latin"}}, {"sr-Latn"}},
      {{{"LANG", "sr_RS@latin.UTF-8"}}, {"sr-Latn"}},
      {{{"LANG", "de_DE@euro"}}, {"de"}},
      {{{"LANG", "ca_ES@valencia"}}, {"ca"}},
      {{{"LANG", "zh_Hant_TW"}}, {"zh-Hant"}},
      {{{"LANG", "ZH-hANT"}}, {"zh-Hant"}},
      {{{"LANG", "es_419"}}, {"es"}},
      {{{"LANG", "x"}, {"LANGUAGE", "iw:in:ji:no_NO:nn"}}, {"he", "id", "yi", "nb", "nn"}},
      // No locale names.
      {{{"LANG", "../../x"}}, {"en"}},
      {{{"LANG", "german"}}, {"en"}},
      {{{"LANG", "x"}, {"LANGUAGE", "d:de_:_de:fr_:de_DE1:dé:@latin:.UTF-8:it_IT_x"}}, {"de", "fr"}},
  };
  for (const auto& [environment, languages] : cases) {
    use(environment);
    EXPECT_EQ(preferredLanguages(), languages) << testing::PrintToString(environment);
  }
}

TEST_F(PreferredLanguages, AreTheHostsOwnOnceSet) {
  use({{"LANG", "de_DE"}});
  setPreferredLanguages(Languages{"pt-BR", "whatever it is"});
  EXPECT_EQ(preferredLanguages(), (Languages{"pt-BR", "whatever it is"}));
  setPreferredLanguages(Languages{});
  EXPECT_EQ(preferredLanguages(), Languages{});
  setPreferredLanguages(std::nullopt);
  EXPECT_EQ(preferredLanguages(), Languages{"de"});
}

}  // namespace
}  // namespace glyph
