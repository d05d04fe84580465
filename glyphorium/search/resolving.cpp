// SPDX-License-Identifier: MIT
#include "glyphorium/search/resolving.h"

#include <algorithm>
#include <iterator>

#include "glyphorium/catalog/custom_entities.h"
#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

// Returns the codes that make up the text. Unlike a search, it always reads a hexadecimal number of four
// digits or more as a code.
std::vector<ParsedCode> codesOf(std::string_view text) {
  const auto bare = text.size() >= 4 ? ascii::number(text, 16) : std::nullopt;
  return bare ? std::vector<ParsedCode>{{*bare, {}}} : parseCodes(text);
}

template <class Matches>
std::vector<Entity> entitiesThat(const Glyphorium& catalog, Matches matches) {
  std::vector<Entity> found;
  for (const auto* list : {&catalog.buildInEntities(), &catalog.allCustomEntities.get()}) {
    std::copy_if(list->begin(), list->end(), std::back_inserter(found), matches);
  }
  return found;
}

Character characterOf(const Glyphorium& catalog, char32_t codePoint) {
  const std::string hex = toolKit().getHex(codePoint);
  Character found = entitiesThat(catalog, [&](const Entity& entity) { return entity.computed.hex == hex; });
  return found.empty() ? Character{entityOf(codePoint)} : found;
}

std::optional<Character> characterOf(const Glyphorium& catalog, const ParsedCode& code) {
  if (code.htmlName.empty()) {
    if (utf8(code.codePoint).empty()) return std::nullopt;
    return characterOf(catalog, code.codePoint);
  }
  const auto place = Search::ofCatalog().indexOfHtmlName(code.htmlName);
  if (!place) return std::nullopt;
  return characterOf(catalog, static_cast<char32_t>(buildInEntity(*place)->computed.decimal));
}

std::vector<Character> charactersNamed(const Glyphorium& catalog, std::string_view name) {
  const std::string lower = lowercased(name);
  std::vector<Character> characters;
  for (Entity& entity : entitiesThat(catalog, [&](const Entity& one) {
         return lowercased(one.computed.fallbackName) == lower || lowercased(one.name()) == lower;
       })) {
    const auto known = std::find_if(characters.begin(), characters.end(),
                                    [&](const Character& one) { return one.front() == entity; });
    (known == characters.end() ? characters.emplace_back() : *known).push_back(std::move(entity));
  }
  if (!characters.empty()) return characters;
  if (const auto codePoint = findCodePoint(name)) characters.push_back(characterOf(catalog, *codePoint));
  return characters;
}

}  // namespace

ResolvedText resolve(std::string_view text, const Glyphorium& catalog) {
  ResolvedText resolved;
  if (graphemeClusters(text).size() == 1) {
    for (const char32_t codePoint : codePoints(text))
      resolved.characters.push_back(characterOf(catalog, codePoint));
    return resolved;
  }
  for (const ParsedCode& code : codesOf(text)) {
    auto character = characterOf(catalog, code);
    if (!character) return {};
    resolved.characters.push_back(*std::move(character));
  }
  if (resolved.characters.empty()) resolved = {charactersNamed(catalog, text), true};
  return resolved;
}

std::optional<char32_t> codePointOf(std::string_view text) {
  const std::vector<ParsedCode> codes = codesOf(text);
  const bool one = codes.size() == 1 && codes.front().htmlName.empty();
  if (!one || utf8(codes.front().codePoint).empty()) return std::nullopt;
  return codes.front().codePoint;
}

Entity entityOf(char32_t codePoint) {
  if (const auto place = Search::ofCatalog().indexOf(codePoint)) return *buildInEntity(*place);
  const std::string hex = toolKit().getHex(codePoint);
  std::vector<Entity> named = customEntities({hex});
  Entity entity = named.empty() ? Unicode(hex).computedEntity().generateEntity() : std::move(named.front());
  entity.computed.group.clear();
  return entity;
}

std::vector<std::string> groupNames() {
  std::vector<std::string> names{std::string(customGroup)};
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) names.emplace_back(text.group);
  }
  return names;
}

std::optional<std::string> groupNamed(std::string_view name) {
  const std::string lower = lowercased(name);
  for (std::string& group : groupNames()) {
    if (lowercased(group) == lower) return std::move(group);
  }
  return std::nullopt;
}

}  // namespace glyph
