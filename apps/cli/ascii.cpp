// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "card.h"
#include "commands.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {

int printAscii(Output& output, bool json) {
  constexpr char32_t count = 128;
  constexpr char32_t columns = 4;
  const auto shortName = [](char32_t codePoint) {
    const glyph::CharacterFacts facts = glyph::characterFacts(codePoint);
    if (codePoint == U' ') return std::string("SP");
    if (facts.status != glyph::CharacterStatus::control) return glyph::utf8(codePoint);
    return std::string(facts.formalAliases.back());  // the abbreviation, "NUL"
  };
  if (json) {
    JsonArray array(output);
    for (char32_t codePoint = 0; codePoint < count; ++codePoint) {
      array.add(nlohmann::ordered_json{{"decimal", static_cast<int>(codePoint)},
                                       {"hex", glyph::toolKit().getHex(codePoint).substr(2)},
                                       {"symbol", glyph::utf8(codePoint)},
                                       {"short", shortName(codePoint)}}
                    .dump());
    }
    array.end();
    return found;
  }
  std::vector<std::vector<std::string>> rows(1);
  for (char32_t column = 0; column < columns; ++column)
    rows[0].insert(rows[0].end(), {output.faint("dec"), output.faint("hex"), column == 0 ? "char" : "char "});
  for (char32_t line = 0; line < count / columns; ++line) {
    std::vector<std::string> row;
    for (char32_t codePoint = line; codePoint < count; codePoint += count / columns) {
      row.push_back(std::to_string(static_cast<int>(codePoint)));
      row.push_back(output.faint(glyph::toolKit().getHex(codePoint).substr(2)));
      row.push_back(output.accent(shortName(codePoint)));
    }
    rows.push_back(std::move(row));
  }
  output.printTable(rows);
  return found;
}

}  // namespace cli
