// SPDX-License-Identifier: MIT
#include "glyphorium/toolkit/copy_forms.h"

#include <algorithm>
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
  std::string text = hex(point);
  std::transform(text.begin(), text.end(), text.begin(), ascii::raised);
  return "U+" + text;
}

// Snippets need the original spelling of the symbol's name, and only the name table has it.
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
     [](const Entity& e) {
       return unlessEmpty(e.additional ? e.additional->htmlNamed.value_or("") : "");
     }},
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
