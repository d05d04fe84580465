// SPDX-License-Identifier: MIT
#include "lookup.h"

#include <algorithm>
#include <charconv>
#include <numeric>

#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/search/search.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {
namespace {

using glyph::Entity;

std::optional<char32_t> number(std::string_view digits, int base) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  const bool whole = error == std::errc() && end == digits.data() + digits.size();
  if (!whole || glyph::utf8(value).empty()) return std::nullopt;
  return value;
}

// The text between a prefix and a suffix, where it has both.
std::optional<std::string_view> between(std::string_view text, std::string_view prefix,
                                        std::string_view suffix) {
  if (text.size() < prefix.size() + suffix.size() || !text.starts_with(prefix) || !text.ends_with(suffix)) {
    return std::nullopt;
  }
  text.remove_prefix(prefix.size());
  text.remove_suffix(suffix.size());
  return text;
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

}  // namespace

std::optional<char32_t> codePointOf(std::string_view text) {
  const std::string lower = glyph::lowercased(text);
  if (const auto digits = between(lower, "&#x", ";")) return number(*digits, 16);
  if (const auto digits = between(lower, "&#", ";")) return number(*digits, 10);
  if (const auto digits = between(lower, "\\u{", "}")) return number(*digits, 16);
  for (const std::string_view prefix : {"u+", "0x", "\\u", "u"}) {
    if (const auto digits = between(lower, prefix, "")) return number(*digits, 16);
  }
  return text.size() >= 4 ? number(text, 16) : std::nullopt;
}

std::vector<Entity> entitiesOf(char32_t codePoint) {
  const std::string hex = glyph::toolKit().getHex(codePoint);
  std::vector<Entity> found = entitiesThat([&](const Entity& entity) { return entity.computed.hex == hex; });
  if (!found.empty()) return found;
  const glyph::ComputedEntity record = glyph::Unicode(hex).computedEntity();
  std::vector<glyph::ComputedEntity> named = glyph::toolKit().addNames({record});
  if (named.empty()) named.push_back(record);
  const glyph::Glyphorium& catalog = glyph::glyphorium();
  return catalog.getEntitiesByEnriching(std::move(named),
                                        catalog.getAdditionalDataFrom(glyph::additionalJson));
}

std::vector<Entity> resolve(std::string_view argument) {
  const auto clusters = glyph::graphemeClusters(argument);
  if (clusters.size() == 1) {
    std::vector<Entity> found;
    for (const char32_t codePoint : glyph::codePoints(argument)) {
      for (Entity& entity : entitiesOf(codePoint)) found.push_back(std::move(entity));
    }
    return found;
  }
  if (const auto codePoint = codePointOf(argument)) return entitiesOf(*codePoint);
  if (between(argument, "&", ";")) {
    return entitiesThat([&](const Entity& entity) {
      return entity.additional && entity.additional->htmlNamed && *entity.additional->htmlNamed == argument;
    });
  }
  const std::string lower = glyph::lowercased(argument);
  return entitiesThat([&](const Entity& entity) {
    return glyph::lowercased(entity.computed.fallbackName) == lower ||
           glyph::lowercased(entity.name()) == lower;
  });
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
