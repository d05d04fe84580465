// SPDX-License-Identifier: MIT
#include "glyphorium/characters/display.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/visible_symbol.h"

namespace glyph {
namespace {

bool isNewToIcu(char32_t codePoint) {
  return codePoint > 0x7F && u_charType(static_cast<UChar32>(codePoint)) == U_UNASSIGNED &&
         characterStatus(codePoint) == CharacterStatus::assigned;
}

bool isMark(char32_t codePoint) {
  return characterCategory(codePoint).starts_with('M');
}

}  // namespace

std::string shownSymbol(std::string_view symbol) {
  const std::u32string points = codePoints(symbol);
  if (std::none_of(points.begin(), points.end(), isNewToIcu)) return visibleSymbol(symbol);
  return (isMark(points.front()) ? "◌" : "") + std::string(symbol);
}

int shownWidth(std::string_view text) {
  const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (std::all_of(text.begin(), text.end(), isAscii)) return displayWidth(text);
  int width = 0;
  for (const std::string_view cluster : graphemeClusters(text)) {
    const std::u32string points = codePoints(cluster);
    const bool isNew = isNewToIcu(points.front()) && !isMark(points.front());
    const bool isWide = isNew && characterFacts(points.front()).eastAsianWidth == "W";
    const bool isSequence = points.size() > 1 && emojiPlace(cluster);
    width += isWide || isSequence ? 2 : isNew ? 1 : displayWidth(cluster);
  }
  return width;
}

}  // namespace glyph
