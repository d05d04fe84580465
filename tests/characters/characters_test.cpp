// SPDX-License-Identifier: MIT
#include "glyphorium/characters/characters.h"

#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <random>
#include <sstream>

#include "glyphorium/characters/names.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/code_point_texts.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"
#include "tests/support/program.h"

namespace glyph {
namespace {

std::string hexList(const std::u32string& points) {
  std::string text;
  for (const char32_t point : points) text += (text.empty() ? "" : ",") + CodeFormats().getHex(point);
  return text;
}

int major(std::string_view version) {
  return static_cast<int>(ascii::number(version.substr(0, version.find('.')), 10).value_or(0));
}

std::vector<std::string> linesOf(std::istream& text) {
  std::vector<std::string> lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

// Python's database is older. A few of the ten thousand code points may differ, because later versions of
// Unicode have corrected some properties.
TEST(Characters, AgreeWithPythonsCopyOfTheDatabase) {
  const unsigned seed = std::random_device()();
  SCOPED_TRACE("seed " + std::to_string(seed));
  const ProgramResult result =
      runProgram("python3 " CHARACTER_TESTS "/python_facts.py " + std::to_string(seed) + " 10000");
  ASSERT_EQ(result.exitCode, 0);
  std::istringstream output(result.output);
  std::vector<std::string> lines = linesOf(output);
  ASSERT_EQ(lines.size(), 10001U);
  const int known = major(lines.front());
  int corrected = 0;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::string_view line = lines[i];
    const CharacterFacts facts = characterFacts(*ascii::number(column(line, 0), 16));
    if (major(facts.version) > known) {
      EXPECT_EQ(column(line, 2), "Cn") << line;
      continue;
    }
    // Python's database has no names for Tangut ideographs, so do not compare them.
    if (facts.script != "Tangut") {
      EXPECT_EQ(facts.name, column(line, 1));
    }
    EXPECT_EQ(hexList(facts.decomposition), column(line, 6)) << line;
    const bool isAssigned = facts.category != "Cn";
    const bool same =
        facts.category == column(line, 2) &&
        (!isAssigned ||
         (facts.bidirectionalClass == column(line, 3) && facts.eastAsianWidth == column(line, 4) &&
          std::to_string(facts.combiningClass.value_or(-1)) == column(line, 5))) &&
        hexList(facts.upperCase) == column(line, 7) && hexList(facts.lowerCase) == column(line, 8) &&
        hexList(facts.titleCase) == column(line, 9);
    if (!same && ++corrected > 40) ADD_FAILURE() << line;
  }
}

TEST(Characters, NamesOfLaterCharactersEqualTheirSource) {
  std::ifstream file(CHARACTER_SOURCES "/names.tsv");
  const std::vector<std::string> lines = linesOf(file);
  ASSERT_GT(lines.size(), 2600U);
  for (const std::string& line : lines) {
    if (line.starts_with("# ")) continue;
    const char32_t codePoint = *ascii::number(column(line, 0), 16);
    const CharacterFacts facts = characterFacts(codePoint);
    EXPECT_EQ(facts.name, column(line, 1));
    EXPECT_GE(major(facts.version), 14) << line;
    EXPECT_EQ(facts.status, CharacterStatus::assigned) << line;
  }
}

TEST(Characters, EveryCodePointHasAStatus) {
  std::map<CharacterStatus, int> counts;
  for (char32_t codePoint = 0; codePoint <= 0x110000; ++codePoint) ++counts[characterStatus(codePoint)];
  // Unicode publishes these numbers for version 17.0.
  EXPECT_EQ(counts[CharacterStatus::assigned], 159801);
  EXPECT_EQ(counts[CharacterStatus::control], 65);
  EXPECT_EQ(counts[CharacterStatus::privateUse], 137468);
  EXPECT_EQ(counts[CharacterStatus::surrogate], 2048);
  EXPECT_EQ(counts[CharacterStatus::noncharacter], 66);
  EXPECT_EQ(counts[CharacterStatus::none], 1);
}

TEST(Characters, NamesAndLabels) {
  const struct {
    char32_t codePoint;
    std::string_view label, version, block, script;
  } cases[] = {
      {0x9, "<control-0009>", "1.1", "Basic Latin", "Common"},
      {0x378, "<reserved-0378>", "", "Greek and Coptic", ""},
      {0xAC00, "HANGUL SYLLABLE GA", "2.0", "Hangul Syllables", "Hangul"},
      {0xD4DB, "HANGUL SYLLABLE PWILH", "2.0", "Hangul Syllables", "Hangul"},
      {0xD800, "<surrogate-D800>", "2.0", "High Surrogates", "Unknown"},
      {0xE000, "<private-use-E000>", "1.1", "Private Use Area", "Unknown"},
      {0xFDD0, "<noncharacter-FDD0>", "", "Arabic Presentation Forms-A", ""},
      {0x9FFC, "CJK UNIFIED IDEOGRAPH-9FFC", "13.0", "CJK Unified Ideographs", "Han"},
      {0x9FFD, "CJK UNIFIED IDEOGRAPH-9FFD", "14.0", "CJK Unified Ideographs", "Han"},
      {0x13460, "EGYPTIAN HIEROGLYPH-13460", "16.0", "Egyptian Hieroglyphs Extended-A",
       "Egyptian Hieroglyphs"},
      {0x18D09, "TANGUT IDEOGRAPH-18D09", "17.0", "Tangut Supplement", "Tangut"},
      {0x1FAE0, "MELTING FACE", "14.0", "Symbols and Pictographs Extended-A", "Common"},
      {0x33479, "CJK UNIFIED IDEOGRAPH-33479", "17.0", "CJK Unified Ideographs Extension J", "Han"},
      {0x3347A, "<reserved-3347A>", "", "CJK Unified Ideographs Extension J", ""},
      {0x100000, "<private-use-100000>", "2.0", "Supplementary Private Use Area-B", "Unknown"},
      {0x10FFFF, "<noncharacter-10FFFF>", "", "Supplementary Private Use Area-B", ""},
      {0x110000, "", "", "", ""},
  };
  for (const auto& one : cases) {
    const CharacterFacts facts = characterFacts(one.codePoint);
    EXPECT_EQ(facts.label, one.label);
    EXPECT_EQ(facts.version, one.version) << one.label;
    EXPECT_EQ(facts.block, one.block) << one.label;
    EXPECT_EQ(facts.script, one.script) << one.label;
    EXPECT_EQ(facts.name, one.label.starts_with('<') ? "" : one.label);
    if (facts.name.empty()) continue;
    EXPECT_EQ(characterNamed(lowercased(facts.name)), one.codePoint);
  }
  EXPECT_EQ(characterNamed("nbsp"), 0xA0U);
  EXPECT_EQ(characterNamed("line feed"), 0xAU);
  EXPECT_EQ(characterNamed("hangul syllable xx"), std::nullopt);
  EXPECT_EQ(characterNamed("CJK UNIFIED IDEOGRAPH-2192"), std::nullopt);
  EXPECT_EQ(characterNamed(""), std::nullopt);
}

TEST(Characters, HaveMeaningsReadingsAndRemarks) {
  const CharacterFacts water = characterFacts(U'水');
  EXPECT_THAT(water.hanDefinition, testing::StartsWith("water"));
  EXPECT_EQ(water.mandarin, "shuǐ");
  EXPECT_EQ(water.japaneseOn, "SUI");
  EXPECT_EQ(characterFacts(U'½').numericValue, "1/2");
  EXPECT_EQ(characterFacts(U'ß').upperCase, U"SS");
  EXPECT_THAT(characterFacts(0x9).formalAliases, testing::IsSupersetOf({"CHARACTER TABULATION", "TAB"}));
  EXPECT_THAT(characterFacts(U'\'').otherNames, testing::Contains("single quote"));
  EXPECT_THAT(characterFacts(U'\'').comments, testing::Contains("2019 is preferred for apostrophe"));
}

TEST(Characters, SetsOfCharacters) {
  const auto count = [](CharacterProperty property, std::string_view value) {
    std::size_t sum = 0;
    char32_t next = 0;
    for (const auto [first, last] : charactersWith(property, value)) {
      EXPECT_GE(first, next);
      next = last + 1;
      sum += next - first;
    }
    return sum;
  };
  EXPECT_EQ(count(CharacterProperty::block, "arrows"), 112U);
  EXPECT_EQ(count(CharacterProperty::block, "LATIN_1 supplement"), 128U);
  EXPECT_EQ(count(CharacterProperty::block, "Greek and Coptic"), 135U);
  EXPECT_EQ(count(CharacterProperty::version, "17"), 4803U);
  EXPECT_EQ(count(CharacterProperty::version, "15.1"), 627U);
  EXPECT_EQ(count(CharacterProperty::category, "Nd"), count(CharacterProperty::category, "decimal number"));
  EXPECT_EQ(count(CharacterProperty::category, "Z"), 19U);
  EXPECT_EQ(count(CharacterProperty::script, "han"), 103351U);
  EXPECT_EQ(count(CharacterProperty::script, ""), 0U);
  EXPECT_EQ(count(CharacterProperty::script, "Klingon"), 0U);
  for (const auto property : {CharacterProperty::block, CharacterProperty::script,
                              CharacterProperty::category, CharacterProperty::version}) {
    for (const std::string_view value : valuesOf(property)) {
      const bool isEmptyBlock = value.starts_with("No");
      EXPECT_TRUE(isEmptyBlock || count(property, value) > 0) << value;
    }
  }
}

}  // namespace
}  // namespace glyph
