// SPDX-License-Identifier: MIT
#include "character_text.h"

#include "glyphorium/characters/display.h"
#include "glyphorium/toolkit/copy_forms.h"

namespace provider {
namespace {

std::string copied(const glyph::Entity& entity, const char* form) {
  return glyph::copyForm(form)->text(entity).value_or("");
}

}  // namespace

glyph::Entity entityOf(const glyph::SearchableItem& item) {
  glyph::Entity entity = glyph::Unicode(item.uniqueIdentifier).computedEntity().generateEntity();
  entity.computed.symbol = item.symbol.empty() ? item.title : item.symbol;
  entity.computed.fallbackName = item.name();
  entity.computed.group = item.genre;
  return entity;
}

std::string label(const glyph::Entity& entity) {
  const glyph::RecordText& symbol = entity.computed.symbol;
  std::string name = entity.name();
  if (symbol.empty() || symbol == name) return name;
  return (glyph::runsRightToLeft(symbol) ? "\u200E" : "") + glyph::visibleSymbol(symbol) + " " + name;
}

std::string description(const glyph::Entity& entity) {
  const bool isCharacter = entity.computed.symbol != entity.name();
  const std::string code = isCharacter ? codePoint(entity) : std::string(entity.computed.hex);
  return entity.computed.group.empty() ? code : entity.computed.group + " · " + code;
}

std::string character(const glyph::Entity& entity) {
  return copied(entity, "character");
}

std::string htmlReference(const glyph::Entity& entity) {
  const std::string name = copied(entity, "html");
  return name.empty() ? copied(entity, "html-hex") : name;
}

std::string codePoint(const glyph::Entity& entity) {
  return copied(entity, "code-point");
}

}  // namespace provider
