// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// A character, given by its code point or by its HTML name.
struct ParsedCode {
  std::uint32_t codePoint = 0;  ///< as written; may be a number that is not a Unicode scalar value
  std::string htmlName;         ///< as written: "rarr"; if it is not empty, codePoint is not used
};

/// Reads a text that consists of codes only, and returns the codes in order. Blanks or commas may separate
/// the codes. The function reads these forms:
/// - "U+2192", "u2192" (four digits at least), "0x2192", "U-00002192", "<U+2192>", "uni2192";
/// - "&#8594;", "&#x2192;", "&rarr;", with the semicolon or without, "#8594;";
/// - escapes of string literals and style sheets: "\u2192", "\u{1f600}", "\U0001F600", "\uD83D\uDE00",
///   "\x{20ac}", "\N{U+2192}", "\2192";
/// - bytes of UTF-8: "%E2%86%92", "\xE2\x86\x92", in octal digits "\342\206\222"; if a hexadecimal byte does
/// not begin a well-formed UTF-8 sequence,
///   its value is the code point;
/// - calls: "chr(8594)", "=UNICHAR(8594)".
/// Hexadecimal digits may be in upper or lower case. Returns an empty list if the text contains anything
/// else. A bare number is rejected, because it may be decimal, hexadecimal or a word ("face"). Any thread may
/// call this function.
GLYPHORIUM_EXPORT std::vector<ParsedCode> parseCodes(std::string_view text);

}  // namespace glyph
