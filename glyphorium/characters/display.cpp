// SPDX-License-Identifier: MIT
#include "glyphorium/characters/display.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

bool isMark(char32_t codePoint) {
  return characterCategory(codePoint).starts_with('M');
}

bool isControl(char32_t codePoint) {
  return characterStatus(codePoint) == CharacterStatus::control ||
         u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_BIDI_CONTROL);
}

std::string visibleCodePoint(char32_t codePoint) {
  if (codePoint < 0x20) return utf8(0x2400 + static_cast<std::int64_t>(codePoint));
  if (codePoint == 0x7F) return "␡";
  if (characterCategory(codePoint) == "Zs") return "␣";
  if (characterStatus(codePoint) == CharacterStatus::privateUse) return "▯";
  return isInvisible(codePoint) ? "⬚" : utf8(codePoint);
}

bool isWide(char32_t codePoint) {
  const auto c = static_cast<UChar32>(codePoint);
  // Only for characters that ICU does not know, because collecting all the facts takes longer.
  if (u_charType(c) == U_UNASSIGNED) return characterFacts(codePoint).eastAsianWidth == "W";
  const auto width = static_cast<UEastAsianWidth>(u_getIntPropertyValue(c, UCHAR_EAST_ASIAN_WIDTH));
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

int clusterWidth(std::string_view cluster) {
  const std::u32string points = codePoints(cluster);
  // U+FE0F selects the emoji presentation, which is two columns wide.
  if (points.find(U'\uFE0F') != std::u32string::npos) return 2;
  if (points.size() > 1 && emojiPlace(cluster)) return 2;
  int widest = 0;
  for (const char32_t point : points) {
    const std::string_view category = characterCategory(point);
    if (category == "Mn" || category == "Me" || category == "Cc" || category == "Cf") continue;
    widest = std::max(widest, isWide(point) ? 2 : 1);
  }
  return widest;
}

}  // namespace

std::string visibleSymbol(std::string_view symbol) {
  const std::u32string points = codePoints(symbol);
  std::string result;
  if (!points.empty() && isMark(points.front())) result = "◌";
  const bool shown = std::any_of(points.begin(), points.end(), [](char32_t c) { return !isInvisible(c); });
  for (const char32_t point : points) {
    const bool asItIs = isMark(point) || (shown && !isControl(point));
    result += asItIs ? utf8(point) : visibleCodePoint(point);
  }
  return result;
}

bool isInvisible(char32_t codePoint) {
  const std::string_view category = characterCategory(codePoint);
  return category.empty() || category.front() == 'C' || category.front() == 'Z' ||
         u_hasBinaryProperty(static_cast<UChar32>(codePoint), UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

bool runsRightToLeft(std::string_view symbol) {
  for (const char32_t point : codePoints(symbol)) {
    const UCharDirection direction = u_charDirection(static_cast<UChar32>(point));
    if (direction == U_LEFT_TO_RIGHT) return false;
    if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC) return true;
  }
  return false;
}

int displayWidth(std::string_view text) {
  const auto isPrintableAscii = [](char byte) { return byte >= ' ' && byte < '\x7F'; };
  if (std::all_of(text.begin(), text.end(), isPrintableAscii)) return static_cast<int>(text.size());
  int width = 0;
  for (const std::string_view cluster : graphemeClusters(text)) width += clusterWidth(cluster);
  return width;
}

}  // namespace glyph
