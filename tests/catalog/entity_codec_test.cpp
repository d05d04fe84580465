// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/entity/codec.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <unordered_set>

#include "glyphorium/catalog/entity/decoding_internal.h"
#include "glyphorium/catalog/glyphorium.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string row =
    R"({"symbol":"A","hex":"0041","htmlHex":"&#x41;","fallbackName":"N","htmlDecimal":"&#65;","decimal":65,"group":"g"})";

std::string with(std::string_view what, std::string_view replacement) {
  std::string changed = row;
  return changed.replace(changed.find(what), what.size(), replacement);
}

TEST(EntityCodec, OneFaultyRowFailsTheWholeTableAndIsReportedOnce) {
  const struct {
    std::string json;
    std::size_t records;     // when it decodes
    std::string_view fault;  // when not: what the line must speak of
  } cases[] = {
      {"[]", 0, ""},
      {"[" + row + "]", 1, ""},
      {" [ " + row + " ,\n" + row + " ] ", 2, ""},
      {"[" + with("\"hex\"", R"("extra":{"a":[1]},"hex")") + "]", 1, ""},
      {"[" + with("\"hex\"", R"("\u0068ex")") + "]", 1, ""},  // an escaped key is the same key
      {"[" + with("\"group\":\"g\"", R"("isSFSymbol":null,"group":"g")") + "]", 1, ""},
      {"", 0, "JSON"},
      {"{}", 0, "array"},
      {"not JSON", 0, "JSON"},
      {"[1]", 0, "object"},
      {"[" + row + ",]", 0, "JSON"},
      {"[" + row + "] x", 0, "JSON"},
      {"[" + row + "," + with("\"fallbackName\":\"N\",", "") + "]", 0, "'fallbackName'"},
      {"[" + with(",\"group\":\"g\"", "") + "]", 0, "'group'"},
      {"[" + with("\"0041\"", "null") + "]", 0, "'hex'"},
      {"[" + with("65,", "\"65\",") + "]", 0, "'decimal'"},
      {"[" + with("65,", "65.0,") + "]", 0, "'decimal'"},
      {"[" + with("65,", "9223372036854775808,") + "]", 0, "'decimal'"},
      {"[" + with("\"hex\"", R"("isSFSymbol":1,"hex")") + "]", 0, "'isSFSymbol'"},
      {"[" + with("\"hex\"", R"("ignored":tru,"hex")") + "]", 0, "JSON"},  // faulty where nobody reads it
      {"[" + with("\"A\"", "\"\xFF\"") + "]", 0, "UTF-8"},
  };
  RecordedDiagnostics diagnostics;
  const Glyphorium catalog;
  for (const auto& [json, records, fault] : cases) {
    const auto decoded = catalog.getComputedEntitiesFrom(json);
    EXPECT_EQ(decoded.has_value(), fault.empty()) << json;
    if (decoded) {
      EXPECT_EQ(decoded->size(), records) << json;
      EXPECT_THAT(diagnostics.take(), ElementsAre());
    } else {
      EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr(fault))) << json;
    }
  }
}

TEST(EntityCodec, TellsAbsentFromEmptyAndFalse) {
  const Glyphorium catalog;
  const auto rows =
      catalog.getComputedEntitiesFrom("[" + row + "," + with("\"hex\"", R"("isSFSymbol":true,"hex")") + "," +
                                      with("\"hex\"", R"("isSFSymbol":false,"hex")") + "]");
  ASSERT_TRUE(rows);
  EXPECT_EQ((*rows)[0].isSFSymbol, std::nullopt);
  EXPECT_EQ((*rows)[1].isSFSymbol, true);
  EXPECT_EQ((*rows)[2].isSFSymbol, false);

  const auto enrichment = catalog.getAdditionalDataFrom(
      R"([{"hex":"0026","advice":[{"lang":"en","text":"a\n\nb"}]},
          {"advice":[],"hex":"0027","betterName":"","searchTerms":["x","y"],"htmlNamed":null,"needsSerifs":true}])");
  ASSERT_TRUE(enrichment);
  EXPECT_EQ((*enrichment)[0].betterName, std::nullopt);
  EXPECT_EQ((*enrichment)[0].advice[0].text, "a\n\nb");
  EXPECT_EQ((*enrichment)[1].betterName, "");
  EXPECT_EQ((*enrichment)[1].htmlNamed, std::nullopt);
  EXPECT_THAT(*(*enrichment)[1].searchTerms, ElementsAre("x", "y"));

  RecordedDiagnostics diagnostics;
  for (const char* const faulty : {R"([{"hex":"0026"}])", R"([{"hex":"0026","advice":{}}])",
                                   R"([{"hex":"0026","advice":[{"lang":"en"}]}])",
                                   R"([{"hex":"0026","advice":[],"searchTerms":[1]}])"}) {
    EXPECT_FALSE(catalog.getAdditionalDataFrom(faulty)) << faulty;
    EXPECT_EQ(diagnostics.take().size(), 1u);
  }
}

TEST(EntityCodec, EncodesPresentFieldsInOrderAndReadsThemBack) {
  const auto keys = [](const std::string& json) {
    std::string result;
    const auto object = nlohmann::ordered_json::parse(json);
    for (const auto& [key, value] : object.items()) result += key + " ";
    return result;
  };
  ComputedEntity record{"0022",        34,          "&#x22;", "&#34;", "\"\\\n", "Quotation Mark",
                        "latin basic", std::nullopt};
  EXPECT_EQ(keys(encode(record)), "hex decimal htmlHex htmlDecimal symbol fallbackName group ");
  record.isSFSymbol = false;
  EXPECT_EQ(keys(encode(record)), "hex decimal htmlHex htmlDecimal symbol fallbackName group isSFSymbol ");
  std::vector<ComputedEntity> decoded;
  ASSERT_EQ(TableDecoder().append("[" + encode(record) + "]", decoded), "");
  EXPECT_EQ(decoded[0].symbol, record.symbol);

  AdditionalData enrichment;
  EXPECT_EQ(keys(encode(enrichment)), "hex advice ");
  enrichment.betterName = "";
  enrichment.searchTerms = {{"a"}};
  enrichment.needsSerifs = false;
  EXPECT_EQ(keys(encode(enrichment)), "hex betterName searchTerms needsSerifs advice ");
  EXPECT_EQ(keys(encode(RawUnicodeEntity{"0041", "A", false})), "hex name isSFSymbol ");
}

TEST(EntityRecords, AreEqualByHexAlone) {
  const auto entity = [](std::string hex, std::string name) {
    Entity one;
    one.computed.hex = std::move(hex);
    one.computed.fallbackName = std::move(name);
    return one;
  };
  const std::unordered_set<Entity> set{entity("00e9", "first"), entity("00E9", "other"),
                                       entity("00e9", "second")};
  EXPECT_EQ(set.size(), 2u);
  EXPECT_EQ(set.find(entity("00e9", ""))->computed.fallbackName, "first");
}

}  // namespace
}  // namespace glyph
