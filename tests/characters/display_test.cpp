// SPDX-License-Identifier: MIT
#include "glyphorium/characters/display.h"

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
                                                                 {"A\u030A", "A\u030A"},
                                                                 // newer than the ICU of Debian 12
                                                                 {"🫩", "🫩"},
                                                                 {"\u1ACF", "◌\u1ACF"},
                                                                 {"\U00010D4E", "\U00010D4E"}};
  for (const auto& [symbol, visible] : cases) EXPECT_EQ(visibleSymbol(symbol), visible) << symbol;
  EXPECT_TRUE(runsRightToLeft("א") && runsRightToLeft("\u0627") && runsRightToLeft("-א"));
  EXPECT_FALSE(runsRightToLeft("→") || runsRightToLeft("a") || runsRightToLeft("") || runsRightToLeft("aא"));
}

TEST(DisplayWidth, CountsTerminalColumns) {
  const struct {
    std::string_view text;
    int width;
  } cases[] = {{"", 0},          {"abc", 3}, {"→", 1},       {"e\u0301", 1},         {"\u0301", 0},
               {"中文", 4},      {"😀", 2},   {"❤\uFE0F", 2}, {"👨\u200D👩\u200D👧", 2}, {"\u200B", 0},
               {"ﾊ", 1},         {"\t", 0},  {"🫩", 2},    {"\u1ACF", 0},          {"🇩🇪", 2},
               {"\U0002EBF0", 2}};
  for (const auto& [text, width] : cases) EXPECT_EQ(displayWidth(text), width) << text;
}

}  // namespace
}  // namespace glyph
