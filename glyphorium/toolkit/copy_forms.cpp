// SPDX-License-Identifier: MIT
#include "glyphorium/toolkit/copy_forms.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <utility>
#include <vector>

#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

using Text = std::optional<std::string>;

Text unlessEmpty(std::string text) {
  return text.empty() ? Text() : Text(std::move(text));
}

template <class Form>
Text ofEachCodePoint(const Entity& entity, std::string_view separator, Form form) {
  std::vector<std::string> texts;
  for (const char32_t point : codePoints(entity.computed.symbol)) texts.push_back(form(point));
  return unlessEmpty(joined(texts, separator));
}

std::string hex(char32_t point) {
  return CodeFormats().getHex(point);
}

std::string decimal(char32_t point) {
  return std::to_string(static_cast<std::uint32_t>(point));
}

std::string codePoint(char32_t point) {
  return "U+" + ascii::uppercased(hex(point));
}

// Appends the number in upper-case hexadecimal digits, padded with zeros to `digits` digits.
void appendHex(std::string& text, std::uint32_t number, int digits) {
  char buffer[16];
  text.append(buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, "%0*X", digits, number)));
}

std::vector<std::uint32_t> utf8Bytes(char32_t point) {
  std::vector<std::uint32_t> bytes;
  for (const char byte : utf8(point)) bytes.push_back(static_cast<unsigned char>(byte));
  return bytes;
}

std::vector<std::uint32_t> utf16Units(char32_t point) {
  if (point < 0x10000) return {point};
  return {0xD800 + ((point - 0x10000) >> 10), 0xDC00 + ((point - 0x10000) & 0x3FF)};
}

// Returns the numbers in hexadecimal, each after the prefix and padded with zeros to `digits` digits.
std::string numbered(const std::vector<std::uint32_t>& numbers, std::string_view prefix, int digits,
                     std::string_view separator = "") {
  std::string text;
  for (const std::uint32_t number : numbers) {
    if (!text.empty()) text += separator;
    text += prefix;
    appendHex(text, number, digits);
  }
  return text;
}

std::string octalEscape(std::uint32_t byte) {
  char buffer[8];
  return {buffer, static_cast<std::size_t>(std::snprintf(buffer, sizeof buffer, "\\%03o", byte & 0xFFU))};
}

// Below U+00A0, C does not allow universal character names such as "\u0041". An octal escape always ends
// after three digits, so any character may follow it.
std::string escapedForC(char32_t point) {
  return point < 0xA0 ? octalEscape(point)
                      : numbered({point}, point < 0x10000 ? "\\u" : "\\U", point < 0x10000 ? 4 : 8);
}

std::string escapedInOctal(char32_t point) {
  std::string text;
  for (const std::uint32_t byte : utf8Bytes(point)) text += octalEscape(byte);
  return text;
}

std::string escapedForPython(char32_t point) {
  return numbered({point}, point < 0x10000 ? "\\u" : "\\U", point < 0x10000 ? 4 : 8);
}

std::string escapedForJavaScript(char32_t point) {
  return point < 0x10000 ? numbered({point}, "\\u", 4) : "\\u{" + numbered({point}, "", 1) + "}";
}

// URLs never escape ASCII letters, ASCII digits and the four signs below (RFC 3986, unreserved characters).
std::string escapedForUrl(char32_t point) {
  const bool isUnreserved =
      point < 0x80 && (ascii::isAlphanumeric(static_cast<char>(point)) || point == U'-' || point == U'.' ||
                       point == U'_' || point == U'~');
  return isUnreserved ? std::string(1, static_cast<char>(point)) : numbered(utf8Bytes(point), "%", 2);
}

// Returns a line of source code that shows an SF Symbol, or nullopt for other characters. The line needs the
// name in its original spelling, which only the Unicode name table has.
Text snippet(const Entity& entity, std::string (CodeFormats::*format)(std::string_view) const) {
  const auto entry = findName(entity.computed.hex);
  if (!entry || !entry->isSFSymbol) return std::nullopt;
  return (CodeFormats().*format)(entry->name);
}

constexpr CopyForm forms[] = {
    {"character", "", [](const Entity& e) { return unlessEmpty(e.computed.symbol); }},
    {"hex", " ", [](const Entity& e) { return ofEachCodePoint(e, " ", hex); }},
    {"decimal", " ", [](const Entity& e) { return ofEachCodePoint(e, " ", decimal); }},
    {"code-point", " ", [](const Entity& e) { return ofEachCodePoint(e, " ", codePoint); }},
    {"html", "",
     [](const Entity& e) { return unlessEmpty(e.additional ? e.additional->htmlNamed.value_or("") : ""); }},
    {"html-hex", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return CodeFormats().getHtmlHex(hex(point)); });
     }},
    {"html-decimal", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return "&#" + decimal(point) + ";"; });
     }},
    {"swift", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return "\\u{" + hex(point) + "}"; });
     }},
    {"utf-8", " ",
     [](const Entity& e) {
       return ofEachCodePoint(e, " ", [](char32_t point) { return numbered(utf8Bytes(point), "", 2, " "); });
     }},
    {"utf-16", " ",
     [](const Entity& e) {
       return ofEachCodePoint(e, " ", [](char32_t point) { return numbered(utf16Units(point), "", 4, " "); });
     }},
    {"utf-32", " ",
     [](const Entity& e) {
       return ofEachCodePoint(e, " ", [](char32_t point) { return numbered({point}, "", 8); });
     }},
    {"c", "", [](const Entity& e) { return ofEachCodePoint(e, "", escapedForC); }},
    {"javascript", "", [](const Entity& e) { return ofEachCodePoint(e, "", escapedForJavaScript); }},
    {"json", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return numbered(utf16Units(point), "\\u", 4); });
     }},
    {"java", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return numbered(utf16Units(point), "\\u", 4); });
     }},
    {"python", "", [](const Entity& e) { return ofEachCodePoint(e, "", escapedForPython); }},
    {"rust", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return "\\u{" + numbered({point}, "", 1) + "}"; });
     }},
    {"css", "",
     [](const Entity& e) {
       return ofEachCodePoint(e, "", [](char32_t point) { return numbered({point}, "\\", 6); });
     }},
    {"url", "", [](const Entity& e) { return ofEachCodePoint(e, "", escapedForUrl); }},
    {"octal-escape", "", [](const Entity& e) { return ofEachCodePoint(e, "", escapedInOctal); }},
    {"swiftui", "\n", [](const Entity& e) { return snippet(e, &CodeFormats::getSFSymbolSwiftUICode); }},
    {"uikit", "\n", [](const Entity& e) { return snippet(e, &CodeFormats::getSFSymbolUIKitCode); }},
};

}  // namespace

std::span<const CopyForm> copyForms() noexcept {
  return forms;
}

const CopyForm* copyForm(std::string_view identifier) noexcept {
  const auto found = std::find_if(std::begin(forms), std::end(forms),
                                  [&](const CopyForm& form) { return form.identifier == identifier; });
  return found == std::end(forms) ? nullptr : found;
}

}  // namespace glyph
