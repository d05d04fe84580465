// SPDX-License-Identifier: MIT
#include "glyphorium/text/xml_unescape.h"

#include <charconv>
#include <cstdint>

#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the replacement for a reference; `name` is the text between "&" and ";". Empty if this is not a
// reference.
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
  // The characters that may occur between "&" and ";". "&" is not one of them: the search for the end of a
  // reference stops at the next "&", so the time is proportional to the length of the text.
  constexpr std::string_view ofReferences = "#0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t ampersand = text.find('&');
    result += text.substr(0, ampersand);
    if (ampersand == std::string_view::npos) break;
    text.remove_prefix(ampersand);
    const std::size_t end = text.find_first_not_of(ofReferences, 1);
    std::string replacement;
    if (end != std::string_view::npos && text[end] == ';') replacement = referenced(text.substr(1, end - 1));
    if (replacement.empty()) {
      result += '&';
      text.remove_prefix(1);
    } else {
      result += replacement;
      text.remove_prefix(end + 1);
    }
  }
  return result;
}

}  // namespace glyph
