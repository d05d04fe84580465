// SPDX-License-Identifier: MIT
#include "glyphorium/text/visible_symbol.h"

#include <gtest/gtest.h>

namespace glyph {
namespace {

using namespace std::string_view_literals;

TEST(VisibleSymbol, IsVisibleAndDoesNotAffectTheTextAroundIt) {
  const std::pair<std::string_view, std::string_view> cases[] = {{"", ""},
                                                                 {"→", "→"},
                                                                 {"\0"sv, "␀"},
                                                                 {"\x1b", "␛"},
                                                                 {"\x7f", "␡"},
                                                                 {" ", "␣"},
                                                                 {"\u00A0", "␣"},
                                                                 {"\u3000", "␣"},
                                                                 {"\u2028", "⬚"},
                                                                 {"\u0085", "⬚"},
                                                                 {"\u202E", "⬚"},
                                                                 {"\u0301", "◌\u0301"},
                                                                 {"\uE009", "▯"},
                                                                 {"\U0010FFFD", "▯"},
                                                                 {"\uFFFF", "⬚"},
                                                                 {"\x1b]", "␛]"},
                                                                 {"A\u202EB", "A⬚B"},
                                                                 {"\u0301\u0302", "◌\u0301\u0302"},
                                                                 {"\u200B\u200C", "⬚⬚"},
                                                                 {"👨\u200D👩", "👨\u200D👩"},
                                                                 {"❤\uFE0F", "❤\uFE0F"},
                                                                 {"A\u030A", "A\u030A"}};
  for (const auto& [symbol, visible] : cases) EXPECT_EQ(visibleSymbol(symbol), visible) << symbol;
  EXPECT_TRUE(runsRightToLeft("א") && runsRightToLeft("\u0627") && runsRightToLeft("-א"));
  EXPECT_FALSE(runsRightToLeft("→") || runsRightToLeft("a") || runsRightToLeft("") || runsRightToLeft("aא"));
}

}  // namespace
}  // namespace glyph
