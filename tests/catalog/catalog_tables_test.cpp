// SPDX-License-Identifier: MIT
// What must hold of every row that the library ships.
#include <gmock/gmock.h>

#include <set>
#include <unordered_map>

#include "glyphorium/catalog/decoding_and_joining_internal.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

TEST(CatalogTables, EveryRowAgreesWithItsCodePoint) {
  const Glyphorium catalog;
  std::size_t rows = 0;
  for (const EmbeddedText& table : embeddedTexts()) {
    if (table.group.empty()) continue;
    const auto records = catalog.getComputedEntitiesFrom(table.text);
    ASSERT_TRUE(records) << table.constant;
    EXPECT_EQ(records->size(), table.rows) << table.constant;
    rows += records->size();
    std::set<std::string> seen;
    std::vector<ComputedEntity> named;
    for (const ComputedEntity& record : *records) {
      // The encoders rebuild every code form from the hex code alone.
      const ComputedEntity rebuilt = Unicode(record.hex).computedEntity();
      ASSERT_EQ(record.decimal, rebuilt.decimal);
      ASSERT_EQ(record.htmlHex, rebuilt.htmlHex);
      ASSERT_EQ(record.htmlDecimal, rebuilt.htmlDecimal);
      ASSERT_EQ(record.symbol, rebuilt.symbol);
      ASSERT_EQ(toolKit().getHex(record.decimal), record.hex);
      ASSERT_EQ(toolKit().getSymbol(record.htmlHex), record.symbol);
      ASSERT_EQ(toolKit().getSymbol(record.htmlDecimal), record.symbol);
      ASSERT_EQ(codePoints(record.symbol), std::u32string(1, static_cast<char32_t>(record.decimal)));
      ASSERT_EQ(record.group, table.group);
      ASSERT_EQ(record.isSFSymbol, table.constant == "sfSymbolsJson" ? std::optional(true) : std::nullopt);
      ASSERT_TRUE(seen.insert(record.hex).second) << record.hex << " stands twice in " << table.constant;
      named.push_back(rebuilt);
    }
    // Name completion gives every row the name that the table carries.
    named = toolKit().addNames(named);
    ASSERT_EQ(named.size(), records->size()) << table.constant;
    for (std::size_t i = 0; i < named.size(); ++i)
      ASSERT_EQ(named[i].fallbackName, (*records)[i].fallbackName);
    const auto before = [&](const ComputedEntity& a, const ComputedEntity& b) {
      return table.constant == "designInspirationJson" ? a.hex < b.hex : a.decimal < b.decimal;
    };
    EXPECT_TRUE(std::is_sorted(records->begin(), records->end(), before)) << table.constant;
  }
  EXPECT_EQ(rows, 18278u);
}

TEST(CatalogTables, OnlyLatinBasicNeedsRepair) {
  for (const EmbeddedText& table : embeddedTexts()) {
    EXPECT_EQ(repairedTable(table.text).has_value(), table.constant == "latinBasicJson") << table.constant;
  }
  const auto records = Glyphorium().getComputedEntitiesFrom(embeddedText("latinBasicJson")->text);
  ASSERT_TRUE(records);
  EXPECT_EQ((*records)[0x22 - 0x20].symbol, "\"");
  EXPECT_EQ((*records)[0x5C - 0x20].symbol, "\\");
}

TEST(CatalogTables, OverlappingRowsDifferInTheirGroupsOnly) {
  const Glyphorium catalog;
  std::unordered_map<std::string, ComputedEntity> first;
  std::size_t repeated = 0;
  for (const EmbeddedText& table : embeddedTexts()) {
    if (table.group.empty()) continue;
    const auto records = catalog.getComputedEntitiesFrom(table.text);
    ASSERT_TRUE(records) << table.constant;
    for (const ComputedEntity& record : *records) {
      const auto [place, isNew] = first.try_emplace(record.hex, record);
      if (isNew) continue;
      ++repeated;
      EXPECT_EQ(record.fallbackName, place->second.fallbackName);
      EXPECT_NE(record.group, place->second.group);
    }
  }
  EXPECT_EQ(repeated, 838u);
}

TEST(CatalogTables, EnrichmentHoldsWhatIsRequiredOfIt) {
  const auto rows = Glyphorium().getAdditionalDataFrom(additionalJson);
  ASSERT_TRUE(rows);
  ASSERT_EQ(rows->size(), 1546u);
  const auto byHex = [](const AdditionalData& a, const AdditionalData& b) { return a.hex < b.hex; };
  EXPECT_TRUE(std::is_sorted(rows->begin(), rows->end(), byHex));
  const std::vector<std::string> allLanguages{"en", "de", "fr", "it", "es"};
  std::size_t empty = 0;
  for (const AdditionalData& row : *rows) {
    // Every key stands in every row, empty where there is no value.
    ASSERT_TRUE(row.betterName && row.htmlNamed && row.imageName && row.searchTerms && row.needsSerifs)
        << row.hex;
    empty += row.betterName->empty() && row.htmlNamed->empty() && row.imageName->empty() &&
             row.searchTerms->empty() && !*row.needsSerifs && row.advice.empty();
    std::vector<std::string> languages;
    for (const AdditionalDataAdvice& note : row.advice) languages.push_back(note.lang);
    if (languages.empty()) continue;
    const auto wanted = row.hex == "201e"   ? std::vector<std::string>{"de"}
                        : row.hex == "201d" ? std::vector<std::string>{"en", "de"}
                                            : allLanguages;
    EXPECT_EQ(languages, wanted) << row.hex;
  }
  EXPECT_EQ(empty, 0u);
  const auto row = [&](const std::string& hex, std::size_t which) {
    const auto place = std::find_if(rows->begin(), rows->end(), [&](auto& one) { return one.hex == hex; });
    return place[static_cast<std::ptrdiff_t>(which)];
  };
  EXPECT_THAT(*row("0026", 0).searchTerms, testing::ElementsAre("and", "et", "+"));
  EXPECT_THAT(*row("2122", 0).searchTerms, testing::ElementsAre("tm"));
  EXPECT_EQ(row("2122", 0).htmlNamed, "");
  EXPECT_EQ(row("2122", 1).htmlNamed, "&trade;");
  EXPECT_THAT(*row("2153", 0).searchTerms, testing::ElementsAre("1 3 13 1/3 0,3", "33%"));
  EXPECT_THAT(*row("2153", 1).searchTerms, testing::ElementsAre("fraction", "1 3 13 1/3"));
  EXPECT_EQ(row("2731", 1).hex, "2731");
}

TEST(NameTable, FindsEveryFirstEntryAndDecodesWhole) {
  structuredUnicodes().clear();
  loadStructuredUnicodes();
  loadStructuredUnicodes();
  const std::vector<RawUnicodeEntity>& entries = structuredUnicodes();
  ASSERT_EQ(entries.size(), 35469u);
  EXPECT_EQ(entries.front().name, "Null character (Control)");
  EXPECT_EQ(entries[33796].hex, "10FFFD");
  EXPECT_EQ(entries.back().hex, "1006E2");
  std::unordered_map<std::string, std::string> first;
  for (const RawUnicodeEntity& entry : entries) {
    const auto& [hex, name] = *first.try_emplace(entry.hex, entry.name).first;
    for (const std::string& spelling : {hex, lowercased(hex)}) {
      const auto found = findName(spelling);
      ASSERT_TRUE(found) << hex;
      ASSERT_EQ(found->name, name);
    }
  }
  for (const char* const none :
       {"", "41", "041", "00041", "4e01", "0378", "0041 ", "U+0041", "110000", "-0041"}) {
    EXPECT_FALSE(findName(none)) << none;
  }
}

TEST(NameCompletion, NamesAndFilters) {
  const struct {
    std::string hex, name, group, result;  // an empty result: the record is left out
  } cases[] = {{"0000", "", "custom", "Null Character (Control)"},
               {"0041", "", "custom", "Latin Capital Letter A"},
               {"1F600", "", "custom", "Grinning Face"},
               {"f90a", "", "custom", "Cjk Compatibility Ideograph-F90A"},
               {"100202", "", "custom", "Square.And.Arrow.Up"},
               {"100000", "", "custom", "<Plane 16 Private Use, First>"},
               {"4e00", "", "custom", "<Cjk Ideograph, First>"},
               {"4e01", "", "custom", ""},
               {"007f", "", "custom", ""},
               {"zzzz", "Mine", "custom", "Mine"},
               {"zzzz", "<CONTROL>", "custom", ""},
               {"0041", "", "Private Use Area", ""},
               {"0041", "", "private use area", "Latin Capital Letter A"}};
  for (const auto& [hex, name, group, result] : cases) {
    ComputedEntity record = Unicode(hex).computedEntity();
    record.fallbackName = name;
    record.group = group;
    const auto named = toolKit().addNames({record});
    ASSERT_EQ(named.size(), result.empty() ? 0u : 1u) << hex;
    if (!named.empty()) {
      EXPECT_EQ(named[0].fallbackName, result);
      EXPECT_EQ(named[0].isSFSymbol, hex == "zzzz" ? std::nullopt : std::optional(hex == "100202"));
    }
  }
  EXPECT_TRUE(toolKit().addNames({}).empty());
}

}  // namespace
}  // namespace glyph
