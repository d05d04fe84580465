// SPDX-License-Identifier: MIT
// Tests codes in every notation, the code formats and XML references. Every code that is written must be read
// back unchanged, and well-formed text must stay well-formed.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/xml_unescape.h"

namespace {

using fuzzing::require;
constexpr glyph::CodeFormats formats;

void parseAndWriteAgain(std::string_view text) {
  const auto codes = glyph::parseCodes(text);
  require(codes.size() <= text.size(), "each code occupies at least one byte");
  std::string written;
  for (const glyph::ParsedCode& code : codes) {
    const bool named = !code.htmlName.empty();
    require(std::all_of(code.htmlName.begin(), code.htmlName.end(), glyph::ascii::isAlphanumeric),
            "HTML names are ASCII letters and digits");
    require(!named || code.codePoint == 0, "a code has either a name or a number");
    if (!written.empty()) written += ' ';
    written += named ? "&" + code.htmlName + ";" : formats.getHtmlHex(formats.getHex(code.codePoint));
  }
  // getHtmlHex() removes leading zeros, so the reference for U+0000 has no digits and cannot be read back.
  if (std::any_of(codes.begin(), codes.end(),
                  [](const auto& code) { return code.htmlName.empty() && code.codePoint == 0; })) {
    return;
  }
  const auto again = glyph::parseCodes(written);
  require(std::equal(codes.begin(), codes.end(), again.begin(), again.end(),
                     [](const auto& a, const auto& b) {
                       return a.codePoint == b.codePoint && a.htmlName == b.htmlName;
                     }),
          "codes written as references are read back");
}

void formatNumber(std::int64_t number) {
  const std::string hex = formats.getHex(number);
  require(formats.getDecimal(hex) == std::max<std::int64_t>(number, 0),
          "a hex code is converted back to its number");
  require(formats.getAdvancedDecimal(hex) == std::vector{formats.getDecimal(hex)},
          "a list of one hex code is converted to the same number");
  const std::string symbol = formats.getAdvancedSymbol(hex);
  require(symbol == glyph::utf8(formats.getDecimal(hex)), "a hex code is converted to its character");
  if (symbol.empty()) return;
  require(formats.getSymbol(formats.getHtmlDecimal(formats.getDecimal(hex))) == symbol,
          "a decimal reference is converted to the character");
  require(hex == "0000" || formats.getSymbol(formats.getHtmlHex(hex)) == symbol,
          "a hexadecimal reference is converted to the character");
}

void formatText(std::string_view text, bool wellFormed) {
  const auto characters = glyph::graphemeClusters(text);
  if (characters.size() < 3) require(formats.getDecimal(text) == 0, "fewer than three characters give 0");

  const std::string html = formats.getHtmlHex(text);
  require(html.starts_with("&#x") && html.ends_with(";"), "a reference begins with &#x and ends with ;");
  const std::string inner = html.substr(3, html.size() - 4);
  require(inner.empty() || glyph::graphemeClusters(inner).front() != "0", "a reference has no leading zeros");
  require(formats.getHtmlHex(inner) == html, "a code without leading zeros gives the same reference");
  std::size_t zeros = 0;
  while (zeros < characters.size() && characters[zeros] == "0") ++zeros;
  require(inner == glyph::lowercased(text.substr(zeros)), "only leading zeros are removed");
  require(!wellFormed || glyph::isWellFormedUtf8(html), "the reference is well-formed UTF-8");

  std::string ofComponents;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    ofComponents += formats.getHtmlHex(text.substr(begin, end - begin));
    begin = end + 1;
  }
  require(formats.getAdvancedHtmlHex(text) == ofComponents, "a list is converted component by component");
  require(glyph::isWellFormedUtf8(formats.getAdvancedSymbol(text)), "symbols are well-formed UTF-8");
}

void unescape(std::string_view text, bool wellFormed) {
  const std::string plain = glyph::xmlUnescaped(text);
  require(plain.size() <= text.size(), "unescaping never makes a text longer");
  require(text.find('&') != std::string_view::npos || plain == text, "a text without & is not changed");
  require(!wellFormed || glyph::isWellFormedUtf8(plain), "well-formed text stays well-formed");
  std::string escaped, references;
  for (const char c : text) escaped += c == '&' ? std::string("&amp;") : std::string(1, c);
  require(glyph::xmlUnescaped(escaped) == text, "escaped text is read back");
  if (!wellFormed) return;
  for (const char32_t c : glyph::codePoints(text)) {
    const std::string zeros(c % 40, '0');
    references += "&#" + zeros + std::to_string(static_cast<std::uint32_t>(c)) + ";";
  }
  require(glyph::xmlUnescaped(references) == text, "references with leading zeros are read back");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const bool wellFormed = glyph::isWellFormedUtf8(text);
  std::int64_t number = 0;
  std::memcpy(&number, data, std::min(size, sizeof number));
  parseAndWriteAgain(text);
  formatNumber(number);
  formatText(text, wellFormed);
  unescape(text, wellFormed);
  return 0;
}
