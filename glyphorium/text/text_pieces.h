// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

/// Functions that split and join texts. All functions are defined in this header. Any thread may call them.
namespace glyph {

/// Returns the text without the ASCII white space at both ends. The result is a view of `text`.
inline std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\n\v\f\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Returns the texts in the same order, joined with the separator.
template <class Texts>
std::string joined(const Texts& texts, std::string_view separator) {
  std::string result;
  bool first = true;
  for (const auto& text : texts) {
    if (!first) result += separator;
    result += text;
    first = false;
  }
  return result;
}

}  // namespace glyph
