// SPDX-License-Identifier: MIT
#include "glyphorium/characters/typing.h"

#include <algorithm>

#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/text/ascii.h"

namespace glyph {

std::vector<WayToType> waysToType(std::string_view text) {
  std::vector<WayToType> ways;
  const auto key = characterKey(text);
  if (!key) return ways;
  const auto addColumns = [&](std::string_view method, const PackedTexts& table,
                              std::string_view around = "") {
    const std::string line = table.find(*key);
    for (std::size_t i = 0; !column(line, i).empty(); ++i) {
      const std::string way = std::string(around) + std::string(column(line, i)) + std::string(around);
      const bool isKnown = std::any_of(ways.begin(), ways.end(), [&](const WayToType& one) {
        return one.method == method && one.text == way;
      });
      if (!isKnown) ways.push_back({method, way, {}});
    }
  };
  addColumns("compose", composeKeys);
  addColumns("latex", latexCommands);
  addColumns("digraph", digraphs);
  addColumns("shortcode", shortcodes, ":");
  const std::string_view codes = altCodes.find(*key).value_or("");
  for (std::size_t i = 0; !column(codes, i).empty(); i += 2) {
    const bool isAnsi = column(codes, i) == "cp1252";
    ways.push_back({"alt-code", (isAnsi ? "0" : "") + std::string(column(codes, i + 1)), column(codes, i)});
  }
  if (*key >= firstEmojiNumber) return ways;
  ways.push_back({"ctrl-shift-u", CodeFormats().getHex(*key), {}});
  addColumns("keysym", keysyms);
  ways.push_back({"keysym", "U" + ascii::uppercased(CodeFormats().getHex(*key)), {}});
  return ways;
}

}  // namespace glyph
