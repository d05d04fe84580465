// SPDX-License-Identifier: MIT
#include "lookup.h"

#include <algorithm>
#include <charconv>
#include <numeric>

#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {
namespace {

using glyph::Entity;

// The codes that the text consists of; here a bare hexadecimal number of four digits is one, too.
std::vector<glyph::ParsedCode> codesOf(std::string_view text) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
  const bool bare = text.size() >= 4 && error == std::errc() && end == text.data() + text.size();
  return bare ? std::vector<glyph::ParsedCode>{{value, {}}} : glyph::parseCodes(text);
}

template <class Matches>
std::vector<Entity> entitiesThat(Matches matches) {
  std::vector<Entity> found;
  for (const auto* list :
       {&glyph::glyphorium().buildInEntities(), &glyph::glyphorium().allCustomEntities.get()}) {
    std::copy_if(list->begin(), list->end(), std::back_inserter(found), matches);
  }
  return found;
}

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t substituted = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
    }
  }
  return row[b.size()];
}

// All of them, known without a configured catalog.
std::vector<std::string> groupNames() {
  std::vector<std::string> names{std::string(glyph::customGroup)};
  for (const glyph::EmbeddedText& text : glyph::embeddedTexts()) {
    if (text.configured) names.emplace_back(text.group);
  }
  return names;
}

Character characterOf(char32_t codePoint) {
  const std::string hex = glyph::toolKit().getHex(codePoint);
  Character found = entitiesThat([&](const Entity& entity) { return entity.computed.hex == hex; });
  if (!found.empty()) return found;
  const glyph::ComputedEntity record = glyph::Unicode(hex).computedEntity();
  std::vector<glyph::ComputedEntity> named = glyph::toolKit().addNames({record});
  if (named.empty()) named.push_back(record);
  const glyph::Glyphorium& catalog = glyph::glyphorium();
  return catalog.getEntitiesByEnriching(std::move(named),
                                        catalog.getAdditionalDataFrom(glyph::additionalJson));
}

// By any of its names there: the enrichment has one for each character.
std::optional<Character> characterNamedInHtml(const std::string& name) {
  const auto index = glyph::Search::ofCatalog().indexOfHtmlName(name);
  if (!index) return std::nullopt;
  return characterOf(static_cast<char32_t>(glyph::buildInEntity(*index)->computed.decimal));
}

std::optional<Character> characterOf(const glyph::ParsedCode& code) {
  if (!code.htmlName.empty()) return characterNamedInHtml(code.htmlName);
  if (glyph::utf8(code.codePoint).empty()) return std::nullopt;
  return characterOf(code.codePoint);
}

}  // namespace

std::optional<char32_t> codePointOf(std::string_view text) {
  const std::vector<glyph::ParsedCode> codes = codesOf(text);
  const bool one = codes.size() == 1 && codes.front().htmlName.empty();
  if (!one || glyph::utf8(codes.front().codePoint).empty()) return std::nullopt;
  return codes.front().codePoint;
}

Resolved resolve(std::string_view argument) {
  Resolved resolved;
  if (glyph::graphemeClusters(argument).size() == 1) {
    for (const char32_t codePoint : glyph::codePoints(argument))
      resolved.characters.push_back(characterOf(codePoint));
    return resolved;
  }
  for (const glyph::ParsedCode& code : codesOf(argument)) {
    auto character = characterOf(code);
    if (!character) return {};
    resolved.characters.push_back(*std::move(character));
  }
  if (!resolved.characters.empty()) return resolved;
  const std::string lower = glyph::lowercased(argument);
  resolved.alternatives = true;
  for (Entity& entity : entitiesThat([&](const Entity& one) {
         return glyph::lowercased(one.computed.fallbackName) == lower ||
                glyph::lowercased(one.name()) == lower;
       })) {
    const auto known = std::find_if(resolved.characters.begin(), resolved.characters.end(),
                                    [&](const Character& one) { return one.front() == entity; });
    (known == resolved.characters.end() ? resolved.characters.emplace_back() : *known)
        .push_back(std::move(entity));
  }
  if (resolved.characters.empty()) {
    if (const auto codePoint = glyph::findCodePoint(argument))
      resolved.characters.push_back(characterOf(*codePoint));
  }
  return resolved;
}

std::string unknownCharacter(const std::string& argument) {
  const auto found = glyph::Search::ofCatalog().query(argument, {1, std::nullopt, {}}).results;
  std::string message = "no character is '" + argument + "'";
  if (found.empty()) return message;
  const Entity nearestOne = *glyph::buildInEntity(found.front().index);
  return message + "; did you mean " + nearestOne.computed.hex + " (" + nearestOne.name() + ")?";
}

std::optional<std::string> groupNamed(std::string_view name) {
  const std::string lower = glyph::lowercased(name);
  for (const std::string& group : groupNames()) {
    if (glyph::lowercased(group) == lower) return group;
  }
  return std::nullopt;
}

std::vector<std::string> nearest(std::string_view text, const std::vector<std::string>& candidates) {
  const std::string lower = glyph::lowercased(text);
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const std::string& candidate : candidates) {
    const std::string other = glyph::lowercased(candidate);
    // A part of a name is as close as a spelling mistake, however long the name.
    const bool part = lower.size() >= 3 && other.find(lower) != std::string::npos;
    ranked.emplace_back(part ? 1 : editDistance(lower, other), candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(), [](auto& a, auto& b) { return a.first < b.first; });
  std::vector<std::string> names;
  for (const auto& [distance, candidate] : ranked) {
    if (names.size() == 3 || distance > std::max<std::size_t>(2, lower.size() / 3)) break;
    names.push_back(candidate);
  }
  return names;
}

std::string unknownGroup(std::string_view name) {
  std::string message = "there is no group '" + std::string(name) + "'";
  const std::vector<std::string> names = nearest(name, groupNames());
  for (const std::string& candidate : names)
    message += (&candidate == &names.front() ? "; did you mean '" : "' or '") + candidate;
  return message + (names.empty() ? "; 'glyphorium groups' lists them" : "'?");
}

}  // namespace cli
