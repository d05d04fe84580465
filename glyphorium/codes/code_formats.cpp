// SPDX-License-Identifier: MIT
#include "glyphorium/codes/code_formats.h"

#include <algorithm>
#include <charconv>

#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/xml_unescape.h"

namespace glyph {
namespace {

std::int64_t digitValue(std::string_view character) {
  if (character.size() != 1) return 0;
  const char c = character.front();
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return 0;
}

// Returns the hexadecimal value of the characters. A character that is not a digit counts as zero. Returns 0
// if the value does not fit into 64 bits.
std::int64_t positionalSum(const std::vector<std::string_view>& characters) {
  std::int64_t sum = 0;
  for (const std::string_view character : characters) {
    if (__builtin_mul_overflow(sum, std::int64_t{16}, &sum) ||
        __builtin_add_overflow(sum, digitValue(character), &sum)) {
      return 0;
    }
  }
  return sum;
}

std::vector<std::string_view> components(std::string_view list) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t comma = list.find(',');
    parts.push_back(list.substr(0, comma));
    if (comma == std::string_view::npos) return parts;
    list.remove_prefix(comma + 1);
  }
}

constexpr std::size_t fewestCharacters = 3;

}  // namespace

std::int64_t CodeFormats::getDecimal(std::string_view from) const {
  const std::string text = lowercased(from);
  const std::vector<std::string_view> characters = graphemeClusters(text);
  return characters.size() < fewestCharacters ? 0 : positionalSum(characters);
}

std::string CodeFormats::getHex(std::int64_t from) const {
  char digits[16];
  const auto end = std::to_chars(digits, digits + sizeof digits, from < 0 ? 0 : from, 16).ptr;
  std::string hex(digits, end);
  if (hex.size() < 4) hex.insert(0, 4 - hex.size(), '0');
  return hex;
}

std::string CodeFormats::getHtmlHex(std::string_view from) const {
  std::size_t zeros = std::min(from.find_first_not_of('0'), from.size());
  // Keep the last leading zero if a combining mark follows it: the zero and the mark are one character.
  if (zeros > 0 && graphemeClusters(from.substr(zeros - 1)).front() != "0") --zeros;
  return "&#x" + lowercased(from.substr(zeros)) + ";";
}

std::string CodeFormats::getHtmlDecimal(std::int64_t from) const {
  return "&#" + std::to_string(from) + ";";
}

std::string CodeFormats::getSymbol(std::string_view from) const {
  return xmlUnescaped(from);
}

std::vector<std::int64_t> CodeFormats::getAdvancedDecimal(std::string_view from) const {
  std::vector<std::int64_t> values;
  if (graphemeClusters(from).size() < fewestCharacters) return values;
  for (const std::string_view component : components(from)) {
    const std::string text = lowercased(component);
    const std::vector<std::string_view> characters = graphemeClusters(text);
    if (characters.size() >= fewestCharacters) values.push_back(positionalSum(characters));
  }
  return values;
}

std::string CodeFormats::getAdvancedHtmlDecimal(const std::vector<std::int64_t>& from) const {
  std::string text;
  for (const std::int64_t value : from) text += getHtmlDecimal(value);
  return text;
}

std::string CodeFormats::getAdvancedHtmlHex(std::string_view from) const {
  std::string text;
  for (const std::string_view component : components(from)) text += getHtmlHex(component);
  return text;
}

std::string CodeFormats::getAdvancedSymbol(std::string_view from) const {
  std::string text;
  for (std::string_view component : components(from)) {
    // std::from_chars accepts a minus sign but not a plus sign.
    if (component.size() > 1 && component[0] == '+' && component[1] != '-') component.remove_prefix(1);
    std::int64_t value = 0;
    const char* const end = component.data() + component.size();
    const auto [stop, error] = std::from_chars(component.data(), end, value, 16);
    if (error == std::errc() && stop == end) text += utf8(value);
  }
  return text;
}

std::string CodeFormats::getSFSymbolSwiftUICode(std::string_view from) const {
  return "Image(systemName: \"" + std::string(from) + "\").font(.system(size: 16.0, weight: .regular))";
}

std::string CodeFormats::getSFSymbolUIKitCode(std::string_view from) const {
  return "UIImage(systemName: \"" + std::string(from) +
         "\", withConfiguration: UIImage.SymbolConfiguration(weight: .regular))";
}

}  // namespace glyph
