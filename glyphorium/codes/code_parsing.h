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
  std::uint32_t codePoint = 0;  ///< as written; not checked to be a Unicode scalar value
  std::string htmlName;         ///< "rarr", as written; if it is not empty, codePoint is unused
};

/// The codes that make up a text. Blanks or commas may stand between them. These forms are read:
/// - "U+2192", "u2192" (four digits at least), "0x2192", "U-00002192", "<U+2192>", "uni2192";
/// - "&#8594;", "&#x2192;", "&rarr;", with the semicolon or without, "#8594;";
/// - escapes of string literals and style sheets: "\u2192", "\u{1f600}", "\U0001F600", "\uD83D\uDE00",
///   "\x{20ac}", "\N{U+2192}", "\2192";
/// - bytes of UTF-8: "%E2%86%92", "\xE2\x86\x92"; a byte that begins no UTF-8 sequence is a code point
/// itself;
/// - calls: "chr(8594)", "=UNICHAR(8594)".
/// Hexadecimal digits may be in upper or lower case. The result is empty if the text holds anything else. A
/// bare number is not read, because it may be decimal, hexadecimal or a word ("face"). Any thread may call
/// it.
GLYPHORIUM_EXPORT std::vector<ParsedCode> parseCodes(std::string_view text);

}  // namespace glyph
