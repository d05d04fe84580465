// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace glyph {

/// Returns a character name in the form that the catalog shows. A letter at the beginning or after a
/// character that is not a letter is in upper case. All other letters are in lower case. Examples: "Latin
/// Capital Letter A", "Cjk Compatibility Ideograph-F90A", "Square.And.Arrow.Up". Names are ASCII. Bytes that
/// are not ASCII do not count as letters and stay unchanged. The title case of Unicode is different: it has a
/// lower-case letter after a digit or a full stop.
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
