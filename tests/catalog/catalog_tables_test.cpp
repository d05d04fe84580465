// SPDX-License-Identifier: MIT
// Checks every row of the embedded tables.
#include <gmock/gmock.h>

#include <map>
#include <unordered_map>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/entity/codec.h"
#include "glyphorium/entity/prepared_entities.h"
#include "glyphorium/entity/table_repair.h"
#include "glyphorium/state/structured_unicodes.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/catalog_figures.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph {
namespace {

TEST(CatalogTables, EveryRowAgreesWithItsCodePoint) {
  const Glyphorium catalog;
  std::size_t rows = 0;
  std::unordered_map<std::string, ComputedEntity> first;
  for (const EmbeddedText& table : embeddedTexts()) {
    EXPECT_EQ(repairedTable(table.text).has_value(), table.constant == "latinBasicJson") << table.constant;
    if (table.group.empty()) continue;
    const auto records = catalog.getComputedEntitiesFrom(table.text);
    ASSERT_TRUE(records) << table.constant;
    EXPECT_EQ(records->size(), table.rows) << table.constant;
    rows += records->size();
    std::vector<ComputedEntity> named;
    for (const ComputedEntity& record : *records) {
      // All other code forms equal those that are computed from the hex code.
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
      named.push_back(rebuilt);
      // If several tables have a row for the same code point, these rows differ only in the group.
      const auto [other, isNew] = first.try_emplace(record.hex, record);
      if (isNew) continue;
      ASSERT_EQ(record.fallbackName, other->second.fallbackName);
      ASSERT_NE(record.group, other->second.group) << record.hex << " occurs twice in " << table.constant;
    }
    // addNames() must give each rebuilt record the name that is in the row of the table.
    named = toolKit().addNames(named);
    ASSERT_EQ(named.size(), records->size()) << table.constant;
    for (std::size_t i = 0; i < named.size(); ++i) {
      ASSERT_EQ(named[i].fallbackName, (*records)[i].fallbackName);
    }
    const auto before = [&](const ComputedEntity& a, const ComputedEntity& b) {
      return table.constant == "designInspirationJson" ? a.hex < b.hex : a.decimal < b.decimal;
    };
    EXPECT_TRUE(std::is_sorted(records->begin(), records->end(), before)) << table.constant;
  }
  EXPECT_EQ(rows, 18278u);
  EXPECT_EQ(first.size(), 18278u - 838u);
}

TEST(CatalogTables, EnrichmentRowsHaveAllKeysAndSomeCodePointsHaveTwoRows) {
  const auto rows = Glyphorium().getAdditionalDataFrom(additionalJson);
  ASSERT_TRUE(rows);
  ASSERT_EQ(rows->size(), 1546u);
  std::map<std::string, std::vector<std::string>> terms;
  for (const AdditionalData& row : *rows) {
    // Each row has all keys. A key without data has an empty value.
    ASSERT_TRUE(row.betterName && row.htmlNamed && row.imageName && row.searchTerms && row.needsSerifs)
        << row.hex;
    for (const RecordText& term : *row.searchTerms) terms[row.hex].push_back(term + *row.htmlNamed);
  }
  // U+2153 has two rows with different search terms and HTML names.
  EXPECT_THAT(terms["0026"], testing::ElementsAre("and&amp;", "et&amp;", "+&amp;"));
  EXPECT_THAT(terms["2153"],
              testing::ElementsAre("1 3 13 1/3 0,3", "33%", "fraction&frac13;", "1 3 13 1/3&frac13;"));
}

// Returns all fields as text. Checks that texts are null-terminated.
std::string fields(const Entity& entity) {
  EXPECT_EQ(entity.computed.symbol.c_str()[entity.computed.symbol.size()], '\0');
  EXPECT_EQ(entity.computed.group.c_str()[entity.computed.group.size()], '\0');
  return encode(entity.computed) + (entity.additional ? encode(*entity.additional) : "");
}

TEST(PreparedEntities, EqualTheDecodedTables) {
  Glyphorium catalog;
  {
    const RecordedDiagnostics quiet;
    catalog.configure();
  }
  const std::vector<Entity>& prepared = catalog.buildInEntities();
  const auto enrichment = catalog.getAdditionalDataFrom(additionalJson);
  std::size_t place = 0;
  for (const EmbeddedText& table : embeddedTexts()) {
    if (!table.configured) continue;
    auto records = catalog.getComputedEntitiesFrom(table.text).value();
    for (const Entity& decoded : catalog.getEntitiesByEnriching(std::move(records), enrichment)) {
      ASSERT_LT(place, prepared.size());
      ASSERT_EQ(fields(prepared[place]), fields(decoded));
      ASSERT_EQ(fields(buildInEntity(place).value()), fields(decoded));
      ++place;
    }
  }
  EXPECT_EQ(place, prepared.size());
  EXPECT_EQ(place, figures::entities);
  EXPECT_FALSE(buildInEntity(place));
  EXPECT_FALSE(buildInEntity(SIZE_MAX));
  for (const AdditionalData& row : *enrichment) EXPECT_TRUE(preparedEnrichmentOf(row.hex)) << row.hex;
  for (const char* const none : {"", "00E9", "0e9", "4e01", "zzzz"}) {
    EXPECT_FALSE(preparedEnrichmentOf(none)) << none;
  }
}

TEST(NameTable, FindsTheFirstEntryOfEachCodeAndDecodesCompletely) {
  structuredUnicodes().clear();
  loadStructuredUnicodes();
  loadStructuredUnicodes();
  const std::vector<RawUnicodeEntity>& entries = structuredUnicodes();
  ASSERT_EQ(entries.size(), figures::names);
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
  for (const char* const none : {"", "41", "041", "00041", "4e01", "0041 ", "U+0041", "110000", "-0041"}) {
    EXPECT_FALSE(findName(none)) << none;
  }
}

TEST(NameCompletion, AddsNamesAndRemovesRecords) {
  const struct {
    std::string hex, result, name = "", group = "custom";
  } cases[] = {{"0000", "Null Character (Control)"},
               {"1F600", "Grinning Face"},
               {"f90a", "Cjk Compatibility Ideograph-F90A"},
               {"100202", "Square.And.Arrow.Up"},
               {"100000", "<Plane 16 Private Use, First>"},
               {"zzzz", "Mine", "Mine"},
               {"0041", "Latin Capital Letter A", "", "private use area"},
               // addNames() must remove the following records.
               {"0041", "", "", "Private Use Area"},
               {"zzzz", "", "<CONTROL>"},
               {"4e01", ""},
               {"007f", ""}};
  for (const auto& [hex, result, name, group] : cases) {
    ComputedEntity record = Unicode(hex).computedEntity();
    record.fallbackName = name;
    record.group = group;
    const auto named = toolKit().addNames({record});
    ASSERT_EQ(named.size(), result.empty() ? 0u : 1u) << hex;
    if (named.empty()) continue;
    EXPECT_EQ(named[0].fallbackName, result);
    EXPECT_EQ(named[0].isSFSymbol, hex == "zzzz" ? std::nullopt : std::optional(hex == "100202"));
  }
}

}  // namespace
}  // namespace glyph
