// SPDX-License-Identifier: MIT
#include "character_text.h"

#include <algorithm>
#include <cctype>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace provider {
namespace {

using glyph::SearchableItem;

// The blocks whose characters run from right to left unless said otherwise (Unicode, DerivedBidiClass).
bool runsFromRight(char32_t c) {
  return (c >= 0x590 && c <= 0x8FF) || (c >= 0xFB1D && c <= 0xFDFF) || (c >= 0xFE70 && c <= 0xFEFF) ||
         (c >= 0x10800 && c <= 0x10FFF) || (c >= 0x1E800 && c <= 0x1EFFF);
}

bool isPrivateUse(char32_t c) {
  return (c >= 0xE000 && c <= 0xF8FF) || c >= 0xF0000;  // shown by the fonts that define them
}

std::size_t dividingTab(const SearchableItem& item) {
  return item.title.find('\t', item.title.starts_with("\t\t") ? 1 : 0);  // the tab is a symbol too
}

template <class Form>
std::string eachCodePoint(const SearchableItem& item, const char* separator, Form form) {
  std::string result;
  for (const char32_t c : glyph::codePoints(character(item))) {
    if (!result.empty()) result += separator;
    result += form(c);
  }
  return result;
}

// By name, where the catalog gives one: the index keeps names in lower case only, and "&Rarr;" is another
// arrow.
std::string reference(char32_t c) {
  if (const auto index = glyph::Search::ofCatalog().indexOf(c)) {
    const glyph::Entity entity = *glyph::buildInEntity(*index);
    const std::string name = entity.additional ? entity.additional->htmlNamed.value_or("") : "";
    if (!name.empty()) return name;
  }
  return glyph::toolKit().getHtmlHex(glyph::toolKit().getHex(c));
}

}  // namespace

std::string symbolOf(const SearchableItem& item) {
  const auto tab = dividingTab(item);
  return tab == std::string::npos ? "" : item.title.substr(0, tab);
}

std::string nameOf(const SearchableItem& item) {
  const auto tab = dividingTab(item);
  return tab == std::string::npos ? item.title : item.title.substr(tab + 1);
}

std::string label(const SearchableItem& item) {
  const std::string symbol = symbolOf(item), name = nameOf(item);
  const std::u32string points = glyph::codePoints(symbol);
  const bool visible = std::any_of(points.begin(), points.end(),
                                   [](char32_t c) { return isPrivateUse(c) || !glyph::isInvisible(c); });
  if (!visible) return name;
  std::string result;
  if (std::any_of(points.begin(), points.end(), runsFromRight)) result += "\u200E";
  if (glyph::isCombining(points.front())) result += "◌";
  return result + symbol + " " + name;
}

std::string description(const SearchableItem& item) {
  const std::string code = symbolOf(item).empty() ? item.uniqueIdentifier : codePoint(item);
  return item.genre.empty() ? code : item.genre + " · " + code;
}

std::string character(const SearchableItem& item) {
  const std::string symbol = symbolOf(item);
  return symbol.empty() ? nameOf(item) : symbol;
}

std::string htmlReference(const SearchableItem& item) {
  return eachCodePoint(item, "", reference);
}

std::string codePoint(const SearchableItem& item) {
  return eachCodePoint(item, " ", [](char32_t point) {
    std::string hex = glyph::toolKit().getHex(point);
    std::transform(hex.begin(), hex.end(), hex.begin(), [](unsigned char c) { return std::toupper(c); });
    return "U+" + hex;
  });
}

}  // namespace provider
