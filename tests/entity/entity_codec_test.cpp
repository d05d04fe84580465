// SPDX-License-Identifier: MIT
#include "glyphorium/entity/codec.h"

#include <gmock/gmock.h>

#include <unordered_set>

#include "glyphorium/catalog/glyphorium.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Returns a table of one row in which the text `what` is replaced with `replacement`.
std::string table(std::string_view what = "", std::string_view replacement = "") {
  std::string text =
      R"([{"symbol":"A","hex":"0041","htmlHex":"&#x41;","fallbackName":"N","htmlDecimal":"&#65;","decimal":65,"group":"g"}])";
  return text.replace(text.find(what), what.size(), replacement);
}

TEST(EntityCodec, OneFaultyRowFailsTheWholeTableAndIsReportedOnce) {
  const std::string good[] = {
      table(),
      table("[", " [ ") + " ",
      table("\"hex\"", R"("extra":{"a":[1]},"hex")"),
      table("\"hex\"", R"("\u0068ex")"),  // a key may be written with escapes
      table("\"group\":\"g\"", R"("isSFSymbol":null,"group":"g")"),
      // The value of an unknown key has numbers outside the range of every number type.
      table("\"hex\"", R"("a\"1e400":["\\",-1e400,{"b":123456789012345678901234567890}],"hex")"),
  };
  const struct {
    std::string fault;  // text that the diagnostic line must contain
    std::vector<std::string> tables;
  } faulty[] = {
      {"JSON", {"", "not JSON", table("}]", "},]"), table() + " x"}},
      {"JSON",  // syntax errors in the value of an unknown key
       {table("\"hex\"", R"("ignored":tru,"hex")"), table("\"hex\"", R"("ignored":[1e400,01],"hex")"),
        table("\"hex\"", R"("ignored":1e400.5,"hex")"), table() + "1e400\""}},
      {"UTF-8", {table("\"A\"", "\"\xFF\"")}},
      {"array", {"{}"}},
      {"object", {"[1]"}},
      {"'fallbackName'", {table("\"fallbackName\":\"N\",")}},
      {"'group'", {table("}]", "},{") + table(",\"group\":\"g\"").substr(2)}},
      {"'hex'", {table("\"0041\"", "null")}},
      {"'decimal'",
       {table("65,", "\"65\","), table("65,", "65.0,"), table("65,", "9223372036854775808,"),
        table("65,", "18446744073709551616,"), table("65,", "1e400,")}},
      {"'isSFSymbol'",
       {table("\"hex\"", R"("isSFSymbol":1,"hex")"), table("\"hex\"", R"("isSFSymbol":1e400,"hex")")}},
  };
  RecordedDiagnostics diagnostics;
  const Glyphorium catalog;
  for (const std::string& text : good) {
    const auto decoded = catalog.getComputedEntitiesFrom(text);
    EXPECT_EQ(decoded ? decoded->size() : 0, 1u) << text;
  }
  EXPECT_THAT(diagnostics.take(), ElementsAre());
  for (const auto& [fault, tables] : faulty) {
    for (const std::string& text : tables) {
      EXPECT_FALSE(catalog.getComputedEntitiesFrom(text)) << text;
      EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr(fault))) << text;
    }
  }
  for (const char* const text : {R"([{"hex":"0026"}])", R"([{"hex":"0026","advice":{}}])",
                                 R"([{"hex":"0026","advice":[{"lang":"en"}]}])",
                                 R"([{"hex":"0026","advice":[],"searchTerms":[1]}])"}) {
    EXPECT_FALSE(catalog.getAdditionalDataFrom(text)) << text;
    EXPECT_EQ(diagnostics.take().size(), 1u);
  }
}

TEST(EntityCodec, DistinguishesAbsentFieldsFromEmptyAndFalse) {
  const Glyphorium catalog;
  const auto enrichment = catalog.getAdditionalDataFrom(
      R"([{"hex":"0026","advice":[{"lang":"en","text":"a\n\nb"}]},
          {"advice":[],"hex":"0027","betterName":"","searchTerms":["x","y"],"htmlNamed":null,"needsSerifs":true}])");
  ASSERT_TRUE(enrichment);
  EXPECT_EQ((*enrichment)[0].betterName, std::nullopt);
  EXPECT_EQ((*enrichment)[0].advice[0].text, "a\n\nb");
  EXPECT_EQ((*enrichment)[1].betterName, "");
  EXPECT_EQ((*enrichment)[1].htmlNamed, std::nullopt);
  EXPECT_EQ((*enrichment)[1].needsSerifs, true);
  EXPECT_THAT(*(*enrichment)[1].searchTerms, ElementsAre("x", "y"));
}

TEST(EntityCodec, EncodesPresentFieldsInOrder) {
  ComputedEntity record{"0022", 34, "&#x22;", "&#34;", "a\\\n\"", "Quotation Mark", "g", std::nullopt};
  const std::string json =
      R"({"hex":"0022","decimal":34,"htmlHex":"&#x22;","htmlDecimal":"&#34;","symbol":"a\\\n\"","fallbackName":"Quotation Mark","group":"g")";
  const std::pair<std::optional<bool>, std::string> flags[] = {
      {std::nullopt, "}"}, {true, R"(,"isSFSymbol":true})"}, {false, R"(,"isSFSymbol":false})"}};
  for (const auto& [flag, end] : flags) {
    record.isSFSymbol = flag;
    EXPECT_EQ(encode(record), json + end);
    const auto rows = Glyphorium().getComputedEntitiesFrom("[" + encode(record) + "]");
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->front().isSFSymbol, flag);
    EXPECT_EQ(rows->front().symbol, record.symbol);
  }
  AdditionalData enrichment;
  EXPECT_EQ(encode(enrichment), R"({"hex":"","advice":[]})");
  enrichment.betterName = enrichment.htmlNamed = enrichment.imageName = "";
  enrichment.searchTerms = {{"a"}};
  enrichment.needsSerifs = false;
  EXPECT_EQ(
      encode(enrichment),
      R"({"hex":"","betterName":"","htmlNamed":"","imageName":"","searchTerms":["a"],"needsSerifs":false,"advice":[]})");
  EXPECT_EQ(encode(RawUnicodeEntity{"0041", "A", false}), R"({"hex":"0041","name":"A","isSFSymbol":false})");
}

TEST(EntityRecords, AreEqualIfTheirHexCodesAreEqual) {
  std::unordered_set<Entity> set;
  for (const char* const hex : {"00e9", "00E9", "00e9"}) {
    Entity entity;
    entity.computed.hex = hex;
    entity.computed.fallbackName = std::to_string(set.size());
    set.insert(entity);
  }
  EXPECT_EQ(set.size(), 2u);
}

}  // namespace
}  // namespace glyph
