// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The textual forms of a character's code. A hex code is a code point in hexadecimal digits without prefix,
/// in either case: "0020", "1f600". A hex list is several of them joined by "," for a character of more than
/// one code point: "0041,030a". Nothing here fails: bad input gives the neutral result that each operation
/// names. All operations are pure; any thread may call them.
class GLYPHORIUM_EXPORT CodeFormats {
 public:
  /// "0020" gives 32. A character that is no hexadecimal digit counts as a zero digit ("0x41" gives 65).
  /// Gives 0 for fewer than three characters and for a value beyond 64 bits.
  std::int64_t getDecimal(std::string_view from) const;

  /// 32 gives "0020": lower case, padded to four digits. A negative value counts as 0.
  std::string getHex(std::int64_t from) const;

  /// "0020" gives "&#x20;": without the leading characters "0", in lower case. The digits are not checked;
  /// "0000" and the empty text give "&#x;".
  std::string getHtmlHex(std::string_view from) const;

  /// 32 gives "&#32;", -5 gives "&#-5;".
  std::string getHtmlDecimal(std::int64_t from) const;

  /// The text with its XML references replaced: "&#x20;" gives a blank. See xmlUnescaped().
  std::string getSymbol(std::string_view from) const;

  /// "0041,030a" gives 65 and 778. Components of fewer than three characters are left out. A text of fewer
  /// than three characters gives an empty list.
  std::vector<std::int64_t> getAdvancedDecimal(std::string_view from) const;

  /// 65 and 778 give "&#65;&#778;".
  std::string getAdvancedHtmlDecimal(const std::vector<std::int64_t>& from) const;

  /// "0041,030A" gives "&#x41;&#x30a;"; an empty component gives "&#x;".
  std::string getAdvancedHtmlHex(std::string_view from) const;

  /// "0041,030a" gives the two code points as text. A component is left out unless it is a
  /// hexadecimal number, with an optional sign, and a Unicode scalar value. One digit is enough here.
  std::string getAdvancedSymbol(std::string_view from) const;

  /// The SwiftUI and UIKit snippets that show the SF Symbol of that name. The name is inserted unchanged,
  /// without escaping.
  std::string getSFSymbolSwiftUICode(std::string_view from) const;
  std::string getSFSymbolUIKitCode(std::string_view from) const;
};

}  // namespace glyph
