// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace glyph {

/// A character name as the catalog shows it: in lower case, but each letter at the begin of the text or
/// behind a non-letter in upper case ("Latin Capital Letter A", "Cjk Compatibility Ideograph-F90A",
/// "Square.And.Arrow.Up"). Names are ASCII; other bytes count as non-letters and stay as they are. This is
/// not the title case of Unicode, which leaves the letter behind a digit or a full stop in lower case.
inline std::string capitalizedName(std::string_view name) {
  std::string result(name);
  bool insideWord = false;
  for (char& c : result) {
    const bool upper = c >= 'A' && c <= 'Z';
    const bool lower = c >= 'a' && c <= 'z';
    if (upper && insideWord) c = static_cast<char>(c + ('a' - 'A'));
    if (lower && !insideWord) c = static_cast<char>(c - ('a' - 'A'));
    insideWord = upper || lower;
  }
  return result;
}

}  // namespace glyph
