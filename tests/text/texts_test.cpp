// SPDX-License-Identifier: MIT
#include "glyphorium/text/unicode_text.h"

#include <gmock/gmock.h>

#include <random>

#include "glyphorium/codes/code_formats.h"
#include "glyphorium/text/xml_unescape.h"

namespace glyph {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;

TEST(UnicodeText, LowerCasesWithTheFullMapping) {
  const struct {
    std::string_view text, lower;
  } cases[] = {{"", ""},
               {"Latin BASIC & [Z]@`{", "latin basic & [z]@`{"},
               {"É", "é"},
               {"İ", "i̇"},                     // one code point gives two
               {"ΟΔΟΣ", "οδος"},               // a sigma at the end of a word
               {"Z\xFFZ\xC3", "z\xFFz\xC3"}};  // ill-formed bytes do not change
  for (const auto& [text, lower] : cases) EXPECT_EQ(lowercased(text), lower);
}

TEST(UnicodeText, SplitsIntoUserPerceivedCharacters) {
  EXPECT_THAT(graphemeClusters("1\r\n2"), ElementsAre("1", "\r\n", "2"));
  EXPECT_THAT(graphemeClusters("e\u0301👨\u200D👩\u200D👧🇩🇪🇫🇷"),
              ElementsAre("e\u0301", "👨\u200D👩\u200D👧", "🇩🇪", "🇫🇷"));
}

TEST(UnicodeText, RecognisesWellFormedUtf8AndScalarValues) {
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

TEST(XmlUnescape, ReplacesReferencesOnceAndLeavesTheRest) {
  const struct {
    std::string_view text, plain;
  } cases[] = {{"", ""},
               {"no reference; here", "no reference; here"},
               {"&#x20;", " "},
               {"&#32;", " "},
               {"a&#x1f600;b&#128512;c", "a😀b😀c"},
               {"&lt;&gt;&quot;&apos;&amp;", "<>\"'&"},
               {"&amp;amp;", "&amp;"},
               {"&&amp;&", "&&&"},
               {"&#xd800;&#1114112;&#99999999999;", "&#xd800;&#1114112;&#99999999999;"},
               {"&#;&#x;&;&#xzz;&#-5;&#+5;", "&#;&#x;&;&#xzz;&#-5;&#+5;"},
               {"&rarr; &#32", "&rarr; &#32"}};
  for (const auto& [text, plain] : cases) EXPECT_EQ(xmlUnescaped(text), plain) << text;
  EXPECT_EQ(xmlUnescaped(std::string(1 << 20, '&')).size(), std::size_t{1} << 20);
}

TEST(Texts, StayWellFormedAndKeepTheirBytesIfTheyAreRandom) {
  const std::string_view pieces[] = {
      "a",  "Z",    " ",    "\0\r"sv,       "\r\n", "İ",     "Σ",   "é",  "e\u0301", "\u200D", "👩",
      "🇩🇪", "\xFF", "\xC3", "\xED\xA0\x80", "&",    "&amp;", "&#x", "&#", "41",      "d800",   ";"};
  std::minstd_rand random(1);
  for (int round = 0; round < 20'000; ++round) {
    std::string text, escaped, points, clusters;
    while (random() % 8 != 0) text += pieces[random() % std::size(pieces)];
    const bool wellFormed = isWellFormedUtf8(text);
    for (const char32_t point : codePoints(text)) points += utf8(point);
    ASSERT_EQ(points == text, wellFormed) << text;
    for (const auto cluster : graphemeClusters(text)) {
      ASSERT_TRUE(!cluster.empty() && (!wellFormed || isWellFormedUtf8(cluster))) << text;
      clusters += cluster;
    }
    ASSERT_EQ(clusters, text);
    ASSERT_EQ(isWellFormedUtf8(lowercased(text)), wellFormed) << text;
    ASSERT_EQ(lowercased(lowercased(text)), lowercased(text));
    ASSERT_TRUE(!wellFormed || isWellFormedUtf8(xmlUnescaped(text))) << text;
    for (const char c : text) escaped += c == '&' ? "&amp;" : c == ';' ? "&#59;" : std::string(1, c);
    ASSERT_EQ(xmlUnescaped(escaped), text);
    ASSERT_TRUE(isWellFormedUtf8(CodeFormats().getAdvancedSymbol(text))) << text;
    ASSERT_TRUE(!wellFormed || isWellFormedUtf8(CodeFormats().getAdvancedHtmlHex(text))) << text;
  }
}

}  // namespace
}  // namespace glyph
