// SPDX-License-Identifier: MIT
#include "glyphorium/text/visible_symbol.h"

#include <unicode/uchar.h>

#include <algorithm>

#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

std::string visibleCodePoint(char32_t codePoint) {
  if (codePoint < 0x20) return utf8(0x2400 + static_cast<std::int64_t>(codePoint));
  if (codePoint == 0x7F) return "␡";
  const auto c = static_cast<UChar32>(codePoint);
  if (u_charType(c) == U_SPACE_SEPARATOR) return "␣";
  if (u_charType(c) == U_PRIVATE_USE_CHAR) return "▯";
  return isInvisible(codePoint) ? "⬚" : utf8(codePoint);
}

bool isControl(char32_t codePoint) {
  const auto c = static_cast<UChar32>(codePoint);
  return u_charType(c) == U_CONTROL_CHAR || u_hasBinaryProperty(c, UCHAR_BIDI_CONTROL);
}

}  // namespace

std::string visibleSymbol(std::string_view symbol) {
  const std::u32string points = codePoints(symbol);
  std::string result;
  if (!points.empty() && isCombining(points.front())) result = "◌";
  const bool shown = std::any_of(points.begin(), points.end(), [](char32_t c) { return !isInvisible(c); });
  for (const char32_t point : points) {
    const bool asItIs = isCombining(point) || (shown && !isControl(point));
    result += asItIs ? utf8(point) : visibleCodePoint(point);
  }
  return result;
}

bool runsRightToLeft(std::string_view symbol) {
  for (const char32_t point : codePoints(symbol)) {
    const UCharDirection direction = u_charDirection(static_cast<UChar32>(point));
    if (direction == U_LEFT_TO_RIGHT) return false;
    if (direction == U_RIGHT_TO_LEFT || direction == U_RIGHT_TO_LEFT_ARABIC) return true;
  }
  return false;
}

}  // namespace glyph
