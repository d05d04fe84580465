// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// A character by its code point or by its name in HTML.
struct ParsedCode {
  std::uint32_t codePoint = 0;  ///< as written: it may be no Unicode scalar value
  std::string htmlName;         ///< "rarr", as written; where it is not empty there is no code point
};

/// The codes that a text consists of, with blanks or commas between them or nothing:
/// - "U+2192", "u2192" (four digits at least), "0x2192", "U-00002192", "<U+2192>", "uni2192";
/// - "&#8594;", "&#x2192;", "&rarr;", with the semicolon or without, "#8594;";
/// - escapes of string literals and style sheets: "\u2192", "\u{1f600}", "\U0001F600", "\uD83D\uDE00",
///   "\x{20ac}", "\N{U+2192}", "\2192";
/// - bytes of UTF-8: "%E2%86%92", "\xE2\x86\x92"; a byte that begins no character is a code point itself;
/// - calls: "chr(8594)", "=UNICHAR(8594)".
/// Digits count in either letter case. Empty for a text that holds anything else, a bare number included: it
/// may be of either base, or a word.
GLYPHORIUM_EXPORT std::vector<ParsedCode> parseCodes(std::string_view text);

}  // namespace glyph
