// SPDX-License-Identifier: MIT
#include "glyphorium/search/words.h"

#include <gtest/gtest.h>

namespace glyph::search {
namespace {

TEST(SearchWords, AreSeparatedAndLatinLettersAreFolded) {
  const struct {
    const char* text;
    const char* words;
  } cases[] = {
      {"ARRÖW arrọw arrǭw", "arrow arrow arrow"},            // diacritics, from three Unicode blocks
      {"fle\u0300che fle\u0300\u0323che", "fleche fleche"},  // combining diacritics
      {"ŁÓDŹ Đorđe Þór œuvre Æsir ǽ ǿ İı", "lodz dorde thor oeuvre aesir ae o ii"},
      {"STRAẞE Straße", "strasse strasse"},
      {"\u212Bngström", "angstrom"},       // ANGSTROM SIGN
      {"Стрелка ΒΈΛΟΣ", "стрелка βέλοσ"},  // letters of other scripts do not change
      {"no-break_space l’œil", "no break space oeil"},
      {"\u0301a × 2 ÷", "a 2"},
      {"a\xFF\xC3z\xE2\x86", "a z"},  // ill-formed bytes separate words
      {"→", ""},
  };
  for (const auto& test : cases) EXPECT_EQ(wordsOf(test.text), test.words) << test.text;
}

TEST(SearchWords, KnowTheirPositionsInTheText) {
  constexpr std::string_view text = " Flèche\u0301 ↑";
  WordReader reader(text);
  ASSERT_TRUE(reader.next());
  EXPECT_EQ(text.substr(reader.begin(), reader.end() - reader.begin()), "Flèche\u0301");
  EXPECT_FALSE(reader.next());
}

}  // namespace
}  // namespace glyph::search
