// SPDX-License-Identifier: MIT
// What holds for every text, of the Unicode operations, the XML unescaping and the code forms.
#include <algorithm>
#include <string>

#include "fuzz/fuzzing.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/platform/xml_unescape.h"
#include "glyphorium/toolkit/code_formats.h"

namespace {

using fuzzing::require;

constexpr glyph::CodeFormats formats;

void tryUnicode(std::string_view text, bool wellFormed) {
  std::string joined;
  for (const char32_t point : glyph::codePoints(text)) joined += glyph::utf8(point);
  require((joined == text) == wellFormed, "code points give back exactly the well-formed texts");

  const std::string lower = glyph::lowercased(text);
  require(glyph::isWellFormedUtf8(lower) == wellFormed, "lower-casing keeps a text as well-formed as it was");
  require(glyph::lowercased(lower) == lower, "what is in lower case stays so");

  const auto clusters = glyph::graphemeClusters(text);
  const char* next = text.data();
  for (const std::string_view cluster : clusters) {
    require(cluster.data() == next && !cluster.empty(), "clusters follow each other without a gap");
    require(!wellFormed || glyph::isWellFormedUtf8(cluster), "no cluster ends within a character");
    next = cluster.data() + cluster.size();
  }
  require(next == text.data() + text.size(), "the clusters are the whole text");

  const int width = glyph::displayWidth(text);
  require(width >= 0 && static_cast<std::size_t>(width) <= 2 * clusters.size(),
          "two columns a cluster at most");
}

void tryUnescaping(std::string_view text, bool wellFormed) {
  const std::string plain = glyph::xmlUnescaped(text);
  require(plain.size() <= text.size(), "unescaping lengthens nothing");
  require(!wellFormed || glyph::isWellFormedUtf8(plain), "unescaping keeps well-formed text so");
  if (text.find('&') == std::string_view::npos) require(plain == text, "without '&' nothing changes");

  std::string escaped;
  for (const char c : text) {
    const std::string_view special = "&<>\"'";
    const char* const entities[] = {"&amp;", "&lt;", "&gt;", "&quot;", "&apos;"};
    const std::size_t which = special.find(c);
    escaped += which == std::string_view::npos ? std::string(1, c) : entities[which];
  }
  require(glyph::xmlUnescaped(escaped) == text, "unescaping undoes escaping");
}

// Any text as the argument of every form.
void tryForms(std::string_view text, bool wellFormed) {
  require(formats.getDecimal(text) >= 0, "a hex code has no sign");
  for (const std::int64_t value : formats.getAdvancedDecimal(text))
    require(value >= 0, "nor has one of a list");
  require(glyph::isWellFormedUtf8(formats.getAdvancedSymbol(text)), "a symbol is well-formed");
  if (wellFormed) {
    require(glyph::isWellFormedUtf8(formats.getHtmlHex(text)), "a reference is as well-formed as its code");
    require(glyph::isWellFormedUtf8(formats.getAdvancedHtmlHex(text)), "so are several");
  }
}

// The text's own characters through every form and back.
void tryCodes(std::string_view text) {
  std::string hexList;
  std::string characters;
  std::vector<std::int64_t> decimals;
  for (const char32_t point : glyph::codePoints(text)) {
    if (point == 0) continue;  // "&#x;" has lost its digits with its zeros
    const std::string hex = formats.getHex(point);
    const std::string symbol = glyph::utf8(point);
    require(formats.getDecimal(hex) == point, "a hex code gives its number");
    require(formats.getSymbol(formats.getHtmlHex(hex)) == symbol, "a hexadecimal reference its character");
    require(formats.getSymbol(formats.getHtmlDecimal(point)) == symbol, "a decimal one too");
    hexList += (hexList.empty() ? "" : ",") + hex;
    characters += symbol;
    decimals.push_back(point);
  }
  require(formats.getAdvancedDecimal(hexList) == decimals, "a hex list gives its numbers");
  require(formats.getAdvancedSymbol(hexList) == characters, "and its characters");
  if (hexList.empty()) return;
  require(formats.getSymbol(formats.getAdvancedHtmlHex(hexList)) == characters, "so do its references");
  require(formats.getSymbol(formats.getAdvancedHtmlDecimal(decimals)) == characters, "in both bases");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzzing::input(data, size);
  const bool wellFormed = glyph::isWellFormedUtf8(text);
  tryUnicode(text, wellFormed);
  tryUnescaping(text, wellFormed);
  tryForms(text, wellFormed);
  tryCodes(text);

  std::int64_t number = 0;
  std::copy_n(data, std::min(size, sizeof number), reinterpret_cast<std::uint8_t*>(&number));
  const std::string hex = formats.getHex(number);
  require(formats.getDecimal(hex) == std::max(number, std::int64_t{0}), "every number survives its hex code");
  return 0;
}
