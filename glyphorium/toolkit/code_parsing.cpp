// SPDX-License-Identifier: MIT
#include "glyphorium/toolkit/code_parsing.h"

#include <charconv>
#include <cstddef>
#include <optional>
#include <utility>

namespace glyph {
namespace {

bool isDigit(char c, int base) {
  const bool letter = (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
  return (c >= '0' && c <= '9') || (base == 16 && letter);
}

bool isAlphanumeric(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Reads code forms from the front of a text.
class CodeReader {
 public:
  explicit CodeReader(std::string_view text) : rest_(text) {}

  bool atEnd() {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == ',')) rest_.remove_prefix(1);
    return rest_.empty();
  }

  std::optional<ParsedCode> next() {
    if (rest_.front() == '&') return reference();
    if (rest_.front() == '\\') return escape();
    const std::string_view head = rest_.substr(0, 2);
    if (head == "U+" || head == "u+") return bare(2, 1);
    if (head == "0x" || head == "0X") return bare(2, 1);
    // Without a sign in front it takes as many digits as a code point is written with, or it would be a word.
    if (head.starts_with('u') || head.starts_with('U')) return bare(1, 4);
    return std::nullopt;
  }

 private:
  // The number of `least` to `most` digits behind `skipped` bytes; takes them all.
  std::optional<std::uint32_t> number(std::size_t skipped, int base, std::size_t least, std::size_t most) {
    std::size_t end = skipped;
    while (end < rest_.size() && isDigit(rest_[end], base)) ++end;
    std::uint32_t value = 0;
    if (end < skipped + least || end > skipped + most) return std::nullopt;
    if (std::from_chars(rest_.data() + skipped, rest_.data() + end, value, base).ec != std::errc())
      return std::nullopt;
    rest_.remove_prefix(end);
    return value;
  }

  bool take(char c) {
    const bool there = !rest_.empty() && rest_.front() == c;
    if (there) rest_.remove_prefix(1);
    return there;
  }

  static std::optional<ParsedCode> item(std::optional<std::uint32_t> value) {
    if (!value) return std::nullopt;
    return ParsedCode{*value, {}};
  }

  // A form that ends where its digits do.
  std::optional<ParsedCode> bare(std::size_t skipped, std::size_t least) {
    const auto value = number(skipped, 16, least, 8);
    if (!rest_.empty() && isAlphanumeric(rest_.front())) return std::nullopt;
    return item(value);
  }

  std::optional<ParsedCode> reference() {
    if (rest_.starts_with("&#")) {
      const bool hex = rest_.size() > 2 && (rest_[2] == 'x' || rest_[2] == 'X');
      const auto value = hex ? number(3, 16, 1, 8) : number(2, 10, 1, 10);
      take(';');
      return item(value);
    }
    std::size_t end = 1;
    while (end < rest_.size() && isAlphanumeric(rest_[end])) ++end;
    if (end == 1) return std::nullopt;
    ParsedCode named{0, std::string(rest_.substr(1, end - 1))};
    rest_.remove_prefix(end);
    take(';');
    return named;
  }

  // As string literals have it, \u2192, \u{2192}, \U00002192, \x{2192}, \xA9, and as style sheets do, \2192.
  std::optional<ParsedCode> escape() {
    if (rest_.starts_with("\\u{") || rest_.starts_with("\\x{")) {
      const auto value = number(3, 16, 1, 8);
      return take('}') ? item(value) : std::nullopt;
    }
    if (rest_.starts_with("\\U")) return item(number(2, 16, 8, 8));
    if (rest_.starts_with("\\x")) return item(number(2, 16, 2, 8));
    if (!rest_.starts_with("\\u")) return item(number(1, 16, 1, 6));
    const auto value = number(2, 16, 4, 6);
    if (!value || *value < 0xD800 || *value > 0xDBFF || !rest_.starts_with("\\u")) return item(value);
    const auto low = number(2, 16, 4, 4);
    if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
    return ParsedCode{0x10000 + ((*value - 0xD800) << 10) + (*low - 0xDC00), {}};
  }

  std::string_view rest_;
};

}  // namespace

std::vector<ParsedCode> parseCodes(std::string_view text) {
  std::vector<ParsedCode> items;
  CodeReader reader(text);
  while (!reader.atEnd()) {
    auto item = reader.next();
    if (!item) return {};
    items.push_back(std::move(*item));
  }
  return items;
}

}  // namespace glyph
