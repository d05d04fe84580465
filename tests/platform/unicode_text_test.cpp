// SPDX-License-Identifier: MIT
#include "glyphorium/platform/unicode_text.h"

#include <gmock/gmock.h>

namespace glyph {
namespace {

using testing::ElementsAre;

TEST(UnicodeText, LowerCasesWithTheFullMapping) {
  const struct {
    std::string_view text, lower;
  } cases[] = {{"", ""},
               {"Latin BASIC & [Z]@`{", "latin basic & [z]@`{"},
               {"É", "é"},
               {"İ", "i̇"},                     // one code point becomes two
               {"ΟΔΟΣ", "οδος"},               // final sigma
               {"Z\xFFZ\xC3", "z\xFFz\xC3"}};  // ill-formed bytes survive
  for (const auto& [text, lower] : cases) EXPECT_EQ(lowercased(text), lower);
}

TEST(UnicodeText, SplitsIntoUserPerceivedCharacters) {
  EXPECT_THAT(graphemeClusters("1\r\n2"), ElementsAre("1", "\r\n", "2"));
  EXPECT_THAT(graphemeClusters("e\u0301👨\u200D👩\u200D👧🇩🇪🇫🇷"),
              ElementsAre("e\u0301", "👨\u200D👩\u200D👧", "🇩🇪", "🇫🇷"));
  std::string rejoined;
  for (const auto cluster : graphemeClusters("a\xF0\x9Fz\xC3")) rejoined += cluster;
  EXPECT_EQ(rejoined, "a\xF0\x9Fz\xC3");
}

TEST(UnicodeText, MeasuresTerminalColumns) {
  const struct {
    std::string_view text;
    int width;
  } cases[] = {{"", 0},     {"abc", 3}, {"→", 1},       {"e\u0301", 1},         {"\u0301", 0},
               {"中文", 4}, {"😀", 2},   {"❤\uFE0F", 2}, {"👨\u200D👩\u200D👧", 2}, {"\u200B", 0},
               {"ﾊ", 1}};
  for (const auto& [text, width] : cases) EXPECT_EQ(displayWidth(text), width) << text;
}

TEST(UnicodeText, KnowsWellFormedUtf8AndScalarValues) {
  for (const std::string_view good : {"", "a", "é→😀", "\xF4\x8F\xBF\xBF"})
    EXPECT_TRUE(isWellFormedUtf8(good));
  for (const std::string_view bad : {"\x80", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\xE2\x86"}) {
    EXPECT_FALSE(isWellFormedUtf8(bad));
  }
  EXPECT_EQ(utf8(0x2192), "→");
  EXPECT_EQ(utf8(0), std::string_view("\0", 1));
  for (const std::int64_t none :
       {std::int64_t{-1}, std::int64_t{0xD800}, std::int64_t{0xDFFF}, std::int64_t{0x110000}, INT64_MAX}) {
    EXPECT_EQ(utf8(none), "");
  }
}

}  // namespace
}  // namespace glyph
