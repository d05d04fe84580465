// SPDX-License-Identifier: MIT
#include "add_dialog.h"
#include "browser_fixture.h"
#include "character_card.h"
#include "font_coverage.h"

namespace browser {
namespace {

using Hexes = std::vector<std::string>;
using NamedCharactersTest = BrowserTest;

TEST_F(NamedCharactersTest, ReturnsTheCharactersOfATextOrAReason) {
  Catalog catalog;
  catalog.add({"21d1"});
  struct Case {
    const char* text;
    Hexes hexes;
    const char* message;  // a part of the message
  };
  const Case cases[] = {
      {"21d0", {"21d0"}, "Leftwards Double Arrow"},
      {" U+21D0 ", {"21d0"}, "U+21D0"},
      {"⇐", {"21d0"}, "Leftwards Double Arrow"},
      {"&lArr;", {"21d0"}, "Leftwards Double Arrow"},
      {"leftwards double arrow", {"21d0"}, "U+21D0"},
      {"⇐ ⇒", {"21d0", "21d2"}, "2 characters"},
      {"", {}, "For example"},
      {"nonsense", {}, "“nonsense” is no code"},
      {"🫠", {"1fae0"}, "Melting Face"},
      {"👍🏽", {"1f44d,1f3fd"}, "Thumbs Up"},
      {"U+0378", {}, "U+0378 is not assigned"},
      {"d800", {}, "no code"},
      {"21d1", {}, "already added"},
  };
  for (const Case& one : cases) {
    const NamedCharacters named = namedCharacters(catalog, one.text);
    EXPECT_EQ(named.hexes, one.hexes) << one.text;
    EXPECT_TRUE(named.message.contains(one.message)) << one.text << ": " << named.message.toStdString();
  }
}

TEST(CodesInNote, AreTheCodesInParentheses) {
  EXPECT_EQ(codesInNote("’ (2019), not ' (0027) or 2014; ’ (2019) again, 𝄞 (1d11e), (face it), (2019"),
            (Hexes{"2019", "0027", "1d11e"}));
}

// The installed fonts differ from machine to machine. But every machine has a font for letters, and no
// machine has a font for the private-use code points in this test.
TEST(FontCoverageTest, FindsTheFontsThatHaveAllCodePoints) {
  const FontCoverage coverage({}, {"en"});
  EXPECT_FALSE(coverage.families(U"a", FontClass::sans).isEmpty());
  EXPECT_FALSE(coverage.families(U"a\u200D\uFE0F", FontClass::serif).isEmpty());
  EXPECT_TRUE(coverage.families(U"a\U0010F000", FontClass::sans).isEmpty());
}

}  // namespace
}  // namespace browser
