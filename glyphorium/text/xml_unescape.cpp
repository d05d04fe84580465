// SPDX-License-Identifier: MIT
#include "glyphorium/text/xml_unescape.h"

#include <charconv>
#include <cstdint>

#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// What the text between "&" and ";" stands for; empty where it is no reference.
std::string referenced(std::string_view name) {
  if (name == "amp") return "&";
  if (name == "lt") return "<";
  if (name == "gt") return ">";
  if (name == "quot") return "\"";
  if (name == "apos") return "'";
  if (name.size() < 2 || name[0] != '#') return {};
  const bool hexadecimal = name[1] == 'x' || name[1] == 'X';
  const std::string_view digits = name.substr(hexadecimal ? 2 : 1);
  std::uint32_t value = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, hexadecimal ? 16 : 10);
  return error == std::errc() && end == digits.data() + digits.size() ? utf8(value) : std::string();
}

}  // namespace

std::string xmlUnescaped(std::string_view text) {
  // The longest sensible reference; without a bound a run of "&" would be searched to its end from each of
  // them.
  constexpr std::size_t longest = 16;
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t ampersand = text.find('&');
    result += text.substr(0, ampersand);
    if (ampersand == std::string_view::npos) break;
    text.remove_prefix(ampersand);
    const std::size_t semicolon = text.substr(0, longest).find(';');
    std::string replacement;
    if (semicolon != std::string_view::npos) replacement = referenced(text.substr(1, semicolon - 1));
    if (replacement.empty()) {
      result += '&';
      text.remove_prefix(1);
    } else {
      result += replacement;
      text.remove_prefix(semicolon + 1);
    }
  }
  return result;
}

}  // namespace glyph
