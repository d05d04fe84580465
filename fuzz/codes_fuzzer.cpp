// SPDX-License-Identifier: MIT
// Codes in every notation, the code formats and XML references: what a format writes is read back the same,
// and well-formed text stays well-formed.
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
  require(codes.size() <= text.size(), "a code takes a byte at least");
  std::string written;
  for (const glyph::ParsedCode& code : codes) {
    const bool named = !code.htmlName.empty();
    require(std::all_of(code.htmlName.begin(), code.htmlName.end(), glyph::ascii::isAlphanumeric),
            "names in HTML are ASCII");
    require(!named || code.codePoint == 0, "a code is a name or a number");
    if (!written.empty()) written += ' ';
    written += named ? "&" + code.htmlName + ";" : formats.getHtmlHex(formats.getHex(code.codePoint));
  }
  // U+0000 loses its last digit on the way.
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
  require(formats.getDecimal(hex) == std::max<std::int64_t>(number, 0), "a hex code is read back");
  require(formats.getAdvancedDecimal(hex) == std::vector{formats.getDecimal(hex)}, "also as a list of one");
  const std::string symbol = formats.getAdvancedSymbol(hex);
  require(symbol == glyph::utf8(formats.getDecimal(hex)), "a hex code gives its character");
  if (symbol.empty()) return;
  require(formats.getSymbol(formats.getHtmlDecimal(formats.getDecimal(hex))) == symbol, "a reference, too");
  require(hex == "0000" || formats.getSymbol(formats.getHtmlHex(hex)) == symbol, "and in hexadecimal");
}

void formatText(std::string_view text, bool wellFormed) {
  const auto characters = glyph::graphemeClusters(text);
  if (characters.size() < 3) require(formats.getDecimal(text) == 0, "three characters are needed");

  const std::string html = formats.getHtmlHex(text);
  require(html.starts_with("&#x") && html.ends_with(";"), "a reference has its frame");
  const std::string inner = html.substr(3, html.size() - 4);
  require(inner.empty() || glyph::graphemeClusters(inner).front() != "0", "no character 0 leads");
  require(formats.getHtmlHex(inner) == html, "a shortened code stays");
  std::size_t zeros = 0;
  while (zeros < characters.size() && characters[zeros] == "0") ++zeros;
  require(inner == glyph::lowercased(text.substr(zeros)), "only characters 0 are left out");
  require(!wellFormed || glyph::isWellFormedUtf8(html), "a reference is well-formed");

  std::string ofComponents;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    ofComponents += formats.getHtmlHex(text.substr(begin, end - begin));
    begin = end + 1;
  }
  require(formats.getAdvancedHtmlHex(text) == ofComponents, "a list is its components");
  require(glyph::isWellFormedUtf8(formats.getAdvancedSymbol(text)), "symbols are well-formed");
}

void unescape(std::string_view text, bool wellFormed) {
  const std::string plain = glyph::xmlUnescaped(text);
  require(plain.size() <= text.size(), "a reference is longer than its character");
  require(text.find('&') != std::string_view::npos || plain == text, "other text stays");
  require(!wellFormed || glyph::isWellFormedUtf8(plain), "well-formed text stays so");
  std::string escaped, references;
  for (const char c : text) escaped += c == '&' ? std::string("&amp;") : std::string(1, c);
  require(glyph::xmlUnescaped(escaped) == text, "escaped text is read back");
  if (!wellFormed) return;
  for (const char32_t c : glyph::codePoints(text)) {
    const std::string zeros(c % 40, '0');
    references += "&#" + zeros + std::to_string(static_cast<std::uint32_t>(c)) + ";";
  }
  require(glyph::xmlUnescaped(references) == text, "references with zeros are read back");
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
