// SPDX-License-Identifier: MIT
#include "glyphorium/codes/code_formats.h"

#include <gmock/gmock.h>

#include <cstdint>

namespace glyph {
namespace {

constexpr CodeFormats formats;

TEST(CodeFormats, DecimalIsThePositionalSumOfThreeOrMoreCharacters) {
  // Characters are grapheme clusters: CR LF counts as one character, and so does a letter with its accent.
  const std::pair<const char*, std::int64_t> cases[] = {{"1F600", 128512},
                                                        {"", 0},
                                                        {"7", 0},
                                                        {"41", 0},
                                                        {"041", 65},
                                                        {"0x41", 65},
                                                        {"00g1", 1},
                                                        {"1\r\n2", 0x102},
                                                        {"1e\u03012", 0x102},
                                                        {"e\u0301"
                                                         "1",
                                                         0},
                                                        {"0041,030a", 0x00410030a},
                                                        {"7fffffffffffffff", INT64_MAX},
                                                        {"8000000000000000", 0},
                                                        {"0000000000000000000000041", 65}};
  for (const auto& [text, value] : cases) EXPECT_EQ(formats.getDecimal(text), value) << text;
}

TEST(CodeFormats, HexIsPaddedAndNeverTruncated) {
  const std::pair<std::int64_t, const char*> cases[] = {
      {0, "0000"},         {15, "000f"}, {4096, "1000"},      {65536, "10000"},
      {1049090, "100202"}, {-7, "0000"}, {INT64_MIN, "0000"}, {INT64_MAX, "7fffffffffffffff"}};
  for (const auto& [value, hex] : cases) EXPECT_EQ(formats.getHex(value), hex);
}

TEST(CodeFormats, References) {
  EXPECT_EQ(formats.getHtmlHex("00A9"), "&#xa9;");
  EXPECT_EQ(formats.getHtmlHex("0000"), "&#x;");
  EXPECT_EQ(formats.getHtmlHex("zz"), "&#xzz;");
  // Leading zeros are removed. A zero with a combining accent is another character and stays. A zero before
  // an ill-formed byte is an ordinary zero.
  EXPECT_EQ(formats.getHtmlHex("000\u03010A"), "&#x0\u03010a;");
  EXPECT_EQ(formats.getHtmlHex("00\xCC"), "&#x\xCC;");
  EXPECT_EQ(formats.getAdvancedHtmlHex("0041,0\u0301,"), "&#x41;&#x0\u0301;&#x;");
  EXPECT_EQ(formats.getSymbol("&#x" + std::string(1000, '0') + "41;&#00000000000000000066;"), "AB");
  EXPECT_EQ(formats.getAdvancedHtmlHex("1000, 030A"), "&#x1000;&#x 030a;");
  EXPECT_EQ(formats.getHtmlDecimal(-5), "&#-5;");
  EXPECT_EQ(formats.getAdvancedHtmlDecimal({65, 778}), "&#65;&#778;");
  EXPECT_EQ(formats.getAdvancedHtmlDecimal({}), "");
}

TEST(CodeFormats, HexLists) {
  const struct {
    std::string list;
    std::vector<std::int64_t> decimals;
    std::string symbol;
  } cases[] = {{"0041,030a", {65, 778}, "A\u030A"},
               {"0041,,1f600", {65, 0x1f600}, "A😀"},
               {"0041,30", {65}, "A0"},
               {"41", {}, "A"},
               {"+41", {65}, "A"},
               {"-0041", {65}, ""},
               {"+-41", {65}, ""},
               {"d800,0041", {0xd800, 65}, "A"},
               {"110000", {0x110000}, ""},
               {",,,", {}, ""},
               {" 41", {65}, ""},
               {"0x41", {65}, ""},
               {"+", {}, ""},
               {"fffffffffffffffff,42", {0}, "B"}};
  for (const auto& [list, decimals, symbol] : cases) {
    EXPECT_EQ(formats.getAdvancedDecimal(list), decimals) << list;
    EXPECT_EQ(formats.getAdvancedSymbol(list), symbol) << list;
  }
}

TEST(CodeFormats, SymbolSnippetsContainTheNameUnchanged) {
  EXPECT_EQ(formats.getSFSymbolSwiftUICode("square.and.arrow.up"),
            R"(Image(systemName: "square.and.arrow.up").font(.system(size: 16.0, weight: .regular)))");
  EXPECT_EQ(
      formats.getSFSymbolUIKitCode("a\"b"),
      R"(UIImage(systemName: "a"b", withConfiguration: UIImage.SymbolConfiguration(weight: .regular)))");
}

}  // namespace
}  // namespace glyph
