// SPDX-License-Identifier: MIT
#include "glyphorium/toolkit/code_formats.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace glyph {
namespace {

using testing::ElementsAre;
constexpr CodeFormats formats;

TEST(CodeFormats, DecimalIsThePositionalSumOfThreeOrMoreCharacters) {
  const struct {
    std::string text;
    std::int64_t value;
  } cases[] = {{"0020", 32},
               {"1F600", 128512},
               {"100202", 1049090},
               {"", 0},
               {"7", 0},
               {"41", 0},
               {"041", 65},
               {"0x41", 65},
               {"00g1", 1},
               {"1\r\n2", 0x102},     // CR LF is one character, and a zero digit
               {"1e\u03012", 0x102},  // so is a letter with its accent
               {"e\u0301"
                "1",
                0},  // two characters only
               {"0041,030a", 0x00410030a},
               {"7fffffffffffffff", INT64_MAX},
               {"8000000000000000", 0},
               {std::string(1000, 'f'), 0},
               {"0000000000000000000000041", 65}};
  for (const auto& [text, value] : cases) EXPECT_EQ(formats.getDecimal(text), value) << text;
}

TEST(CodeFormats, HexIsPaddedNeverCut) {
  const std::pair<std::int64_t, const char*> cases[] = {
      {0, "0000"},    {15, "000f"},        {32, "0020"},
      {4096, "1000"}, {65536, "10000"},    {1049090, "100202"},
      {-7, "0000"},   {INT64_MIN, "0000"}, {INT64_MAX, "7fffffffffffffff"}};
  for (const auto& [value, hex] : cases) EXPECT_EQ(formats.getHex(value), hex);
}

TEST(CodeFormats, HtmlReferences) {
  const std::pair<const char*, const char*> hex[] = {{"0020", "&#x20;"},   {"00A9", "&#xa9;"},
                                                     {"1000", "&#x1000;"}, {"0000", "&#x;"},
                                                     {"", "&#x;"},         {"zz", "&#xzz;"}};
  for (const auto& [text, reference] : hex) EXPECT_EQ(formats.getHtmlHex(text), reference);
  EXPECT_EQ(formats.getHtmlDecimal(0), "&#0;");
  EXPECT_EQ(formats.getHtmlDecimal(-5), "&#-5;");
  EXPECT_EQ(formats.getAdvancedHtmlHex("0041,030A"), "&#x41;&#x30a;");
  EXPECT_EQ(formats.getAdvancedHtmlHex("0041,"), "&#x41;&#x;");
  EXPECT_EQ(formats.getAdvancedHtmlHex("0041, 030a"), "&#x41;&#x 030a;");
  EXPECT_EQ(formats.getAdvancedHtmlDecimal({65, 778}), "&#65;&#778;");
  EXPECT_EQ(formats.getAdvancedHtmlDecimal({}), "");
}

TEST(CodeFormats, HexLists) {
  EXPECT_THAT(formats.getAdvancedDecimal("0041,030a"), ElementsAre(65, 778));
  EXPECT_THAT(formats.getAdvancedDecimal("0041,30"), ElementsAre(65));
  EXPECT_THAT(formats.getAdvancedDecimal("0041,,030a"), ElementsAre(65, 778));
  EXPECT_THAT(formats.getAdvancedDecimal("ab"), ElementsAre());
  EXPECT_THAT(formats.getAdvancedDecimal(",,,"), ElementsAre());
  const std::pair<const char*, const char*> symbols[] = {{"0041,030a", "A\u030A"},
                                                         {"1f600", "😀"},
                                                         {"41", "A"},
                                                         {"+41", "A"},
                                                         {"-41", ""},
                                                         {"+-41", ""},
                                                         {"-0041", ""},
                                                         {"d800,0041", "A"},
                                                         {"110000", ""},
                                                         {"zz", ""},
                                                         {"", ""},
                                                         {" 41", ""},
                                                         {"0x41", ""},
                                                         {"+", ""},
                                                         {"fffffffffffffffff,42", "B"}};
  for (const auto& [list, text] : symbols) EXPECT_EQ(formats.getAdvancedSymbol(list), text) << list;
}

TEST(CodeFormats, SymbolSnippetsTakeTheNameUnchanged) {
  EXPECT_EQ(formats.getSFSymbolSwiftUICode("square.and.arrow.up"),
            R"(Image(systemName: "square.and.arrow.up").font(.system(size: 16.0, weight: .regular)))");
  EXPECT_EQ(
      formats.getSFSymbolUIKitCode("a\"b"),
      R"(UIImage(systemName: "a"b", withConfiguration: UIImage.SymbolConfiguration(weight: .regular)))");
}

}  // namespace
}  // namespace glyph
