// SPDX-License-Identifier: MIT
#include "glyphorium/codes/code_parsing.h"

#include <cstddef>
#include <optional>
#include <utility>

#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Reads codes one after another from the beginning of a text. After a code that cannot be read, the
// position is undefined, and the caller must reject the whole text.
class CodeReader {
 public:
  explicit CodeReader(std::string_view text) : rest_(text) {}

  bool atEnd() {
    while (!rest_.empty() && (rest_.front() == ' ' || rest_.front() == ',')) rest_.remove_prefix(1);
    return rest_.empty();
  }

  std::optional<ParsedCode> next() {
    if (const auto arguments = callBegin()) return call(*arguments);
    if (take("&")) return reference();
    if (take("#"))
      return numericReference(4);  // "&#8594;" without "&"; with fewer than four digits, probably a hashtag
    if (take("\\")) return escape();
    if (take("%")) return bytes("%");
    if (take("<U+")) return closed(number(16, 1, 8), ">");
    if (take("U-") || take("u-")) return ended(number(16, 8, 8));
    if (take("U+") || take("u+")) {
      const std::size_t least = take(" ") ? 4 : 1;
      return ended(number(16, least, 8));
    }
    if (take("0x") || take("0X")) return ended(number(16, 1, 8));
    if (take("uni")) return ended(number(16, 4, 4));  // a glyph name in a font
    // "U2192" without the "+" needs at least four digits, because a shorter text such as "ube" may be a word.
    if (take("u") || take("U")) return ended(number(16, 4, 8));
    return std::nullopt;
  }

 private:
  bool take(std::string_view text) {
    const bool there = rest_.starts_with(text);
    if (there) rest_.remove_prefix(text.size());
    return there;
  }

  // Reads a number of `least` to `most` digits. Returns nullopt if there are fewer or more digits.
  std::optional<std::uint32_t> number(int base, std::size_t least, std::size_t most) {
    std::size_t end = 0;
    while (end < rest_.size() && (base == 16 ? ascii::isHexDigit(rest_[end]) : ascii::isDigit(rest_[end])))
      ++end;
    if (end < least || end > most) return std::nullopt;
    const auto value = ascii::number(rest_.substr(0, end), base);
    if (value) rest_.remove_prefix(end);
    return value;
  }

  static std::optional<ParsedCode> code(std::optional<std::uint32_t> value) {
    if (!value) return std::nullopt;
    return ParsedCode{*value, {}};
  }

  // Returns the code, or nullopt if a letter or digit follows its digits.
  std::optional<ParsedCode> ended(std::optional<std::uint32_t> value) const {
    return rest_.empty() || !ascii::isAlphanumeric(rest_.front()) ? code(value) : std::nullopt;
  }

  std::optional<ParsedCode> closed(std::optional<std::uint32_t> value, std::string_view end) {
    return take(end) ? code(value) : std::nullopt;
  }

  std::optional<ParsedCode> numericReference(std::size_t leastDigits) {
    const bool hex = take("x") || take("X");
    const auto value = hex ? number(16, leastDigits, 8) : number(10, leastDigits, 10);
    return take(";") ? code(value) : ended(value);
  }

  std::optional<ParsedCode> reference() {
    if (take("#")) return numericReference(1);
    std::size_t end = 0;
    while (end < rest_.size() && ascii::isAlphanumeric(rest_[end])) ++end;
    if (end == 0) return std::nullopt;
    ParsedCode named{0, std::string(rest_.substr(0, end))};
    rest_.remove_prefix(end);
    take(";");
    return named;
  }

  std::optional<ParsedCode> escape() {
    if (take("u{") || take("x{")) return closed(number(16, 1, 8), "}");
    if (take("N{U+")) return closed(number(16, 1, 8), "}");
    if (take("U")) return code(number(16, 8, 8));
    if (take("x")) {
      std::size_t digits = 0;
      while (digits < rest_.size() && ascii::isHexDigit(rest_[digits])) ++digits;
      return digits == 2 ? bytes("\\x") : code(number(16, 3, 8));
    }
    if (const auto character = octalBytes()) return character;
    if (!take("u")) return code(number(16, 1, 6));
    const auto value = number(16, 4, 6);
    if (!value || *value < 0xD800 || *value > 0xDBFF || !take("\\u")) return code(value);
    const auto low = number(16, 4, 4);
    if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
    return ParsedCode{0x10000 + ((*value - 0xD800) << 10) + (*low - 0xDC00), {}};
  }

  // Reads the character of several octal escapes, which are the bytes of its UTF-8. Reads nothing if there is
  // only one: then it is an escape of a style sheet, whose digits are hexadecimal.
  std::optional<ParsedCode> octalBytes() {
    const std::string_view begin = rest_;
    constexpr std::size_t digits = 3;
    auto character = bytes("\\", digits, 8);
    if (character && begin.size() - rest_.size() > digits) return character;
    rest_ = begin;
    return std::nullopt;
  }

  // Reads the digits of a byte. Then reads further bytes, each after `introducer`, until the bytes form
  // one UTF-8 sequence. If they never do, only the first byte is read, and its value is the code point.
  std::optional<ParsedCode> bytes(std::string_view introducer, std::size_t digits = 2, int base = 16) {
    const auto byte = [&]() -> std::optional<char> {
      const auto value = rest_.size() < digits ? std::nullopt : ascii::number(rest_.substr(0, digits), base);
      if (!value || *value > 0xFF) return std::nullopt;
      rest_.remove_prefix(digits);
      return static_cast<char>(*value);
    };
    const auto first = byte();
    if (!first) return std::nullopt;
    const std::string_view behindFirst = rest_;
    std::string sequence(1, *first);
    while (sequence.size() < 4 && !isWellFormedUtf8(sequence) && take(introducer)) {
      const auto next = byte();
      if (!next) break;
      sequence += *next;
    }
    if (isWellFormedUtf8(sequence)) return code(static_cast<std::uint32_t>(codePoints(sequence).front()));
    rest_ = behindFirst;
    return code(static_cast<unsigned char>(*first));
  }

  // If the text begins with a call such as "chr(" or "=UNICHAR(", returns the offset of the argument.
  // Otherwise returns nullopt.
  std::optional<std::size_t> callBegin() const {
    constexpr std::size_t longestName = 8;
    const std::size_t open = rest_.substr(0, longestName + 1).find('(');
    if (open == std::string_view::npos) return std::nullopt;
    std::string name = lowercased(rest_.substr(0, open));
    if (name.starts_with('=')) name.erase(0, 1);
    const bool known = name == "chr" || name == "char" || name == "unichar" || name == "chrw";
    return known ? std::optional(open + 1) : std::nullopt;
  }

  std::optional<ParsedCode> call(std::size_t begin) {
    rest_.remove_prefix(begin);
    return closed(take("0x") ? number(16, 1, 8) : number(10, 1, 10), ")");
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
