// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

/// Functions for ASCII characters. Unlike those of <cctype>, these functions do not depend on the process's
/// locale.
namespace glyph::ascii {

inline char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}
inline char raised(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - ('a' - 'A')) : c;
}
inline bool isLetter(char c) {
  return lowered(c) >= 'a' && lowered(c) <= 'z';
}
inline bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
inline bool isHexDigit(char c) {
  return isDigit(c) || (lowered(c) >= 'a' && lowered(c) <= 'f');
}
inline bool isAlphanumeric(char c) {
  return isLetter(c) || isDigit(c);
}

/// Returns the text with its ASCII letters in upper case.
inline std::string uppercased(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), raised);
  return text;
}

/// Returns whether the texts are equal if the case of ASCII letters is ignored.
inline bool equalIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lowered(x) == lowered(y); });
}

/// Returns the value of a text of digits in this base. Returns nullopt if the text is empty or contains
/// anything but digits, or if the value does not fit into 32 bits.
inline std::optional<std::uint32_t> number(std::string_view text, int base) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace glyph::ascii
