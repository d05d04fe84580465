// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The textual forms of a character's code. A hex code is a code point in hexadecimal digits without a
/// prefix, in upper or lower case: "0020", "1f600". A hex list is several hex codes joined by ",", for a
/// character of more than one code point: "0041,030a". No function fails: each comment below says what bad
/// input gives. All functions are pure; any thread may call them.
class GLYPHORIUM_EXPORT CodeFormats {
 public:
  /// Converts a hex code to a number: "0020" gives 32. A character that is not a hexadecimal digit counts as
  /// the digit zero ("0x41" gives 65). Returns 0 if the text has fewer than three characters or if the value
  /// does not fit into 64 bits.
  std::int64_t getDecimal(std::string_view from) const;

  /// Converts a number to a hex code in lower case, padded to four digits: 32 gives "0020". A negative value
  /// counts as 0.
  std::string getHex(std::int64_t from) const;

  /// Converts a hex code to a hexadecimal HTML character reference: "0020" gives "&#x20;". The result is in
  /// lower case and has no leading zeros. The digits are not checked. "0000" and the empty text give
  /// "&#x;".
  std::string getHtmlHex(std::string_view from) const;

  /// Converts a number to a decimal HTML character reference: 32 gives "&#32;", -5 gives "&#-5;".
  std::string getHtmlDecimal(std::int64_t from) const;

  /// Returns the text with its XML references replaced: "&#x20;" gives a blank. See xmlUnescaped().
  std::string getSymbol(std::string_view from) const;

  /// Converts a hex list to numbers: "0041,030a" gives 65 and 778. A component of fewer than three characters
  /// is left out. A text of fewer than three characters gives an empty list.
  std::vector<std::int64_t> getAdvancedDecimal(std::string_view from) const;

  /// Converts numbers to decimal HTML character references: 65 and 778 give "&#65;&#778;".
  std::string getAdvancedHtmlDecimal(const std::vector<std::int64_t>& from) const;

  /// Converts a hex list to hexadecimal HTML character references: "0041,030A" gives "&#x41;&#x30a;". An
  /// empty component gives "&#x;".
  std::string getAdvancedHtmlHex(std::string_view from) const;

  /// Converts a hex list to text: "0041,030a" gives the text of these two code points. A component may have a
  /// sign and may consist of a single digit. A component is left out if it is not a hexadecimal number, or if
  /// its value is not a Unicode scalar value.
  std::string getAdvancedSymbol(std::string_view from) const;

  /// Returns the SwiftUI or UIKit snippet that shows the SF Symbol with this name. The name is inserted
  /// unchanged, without escaping.
  std::string getSFSymbolSwiftUICode(std::string_view from) const;
  std::string getSFSymbolUIKitCode(std::string_view from) const;
};

}  // namespace glyph
