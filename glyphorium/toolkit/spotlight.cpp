// SPDX-License-Identifier: MIT
#include "glyphorium/platform/application.h"
#include "glyphorium/platform/searchable_index.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

// Completions are ignored: an index that refuses a request tells so through the diagnostics by itself.
SearchableIndex::Completion nothing() {
  return {};
}

// The text split at every single blank; an empty piece stands wherever two meet and at the ends.
void appendPieces(std::string_view text, std::vector<std::string>& pieces) {
  for (;;) {
    const std::size_t blank = text.find(' ');
    pieces.emplace_back(text.substr(0, blank));
    if (blank == std::string_view::npos) return;
    text.remove_prefix(blank + 1);
  }
}

SearchableItem itemOf(const Entity& entity, const std::string& domain) {
  SearchableItem item;
  item.uniqueIdentifier = entity.computed.hex;
  item.domainIdentifier = domain;
  item.contentType = "Glyph";
  const std::string name = entity.name();
  item.title = entity.computed.symbol + "\t" + name;
  if (entity.additional) item.comment = entity.additional->localizedAdvice();
  item.genre = entity.computed.group;
  item.keywords = {entity.computed.symbol, name, "qv:", "qv: ", "entity"};
  appendPieces(entity.searchString(), item.keywords);
  return item;
}

}  // namespace

void EntityToolKit::addToSpotlight(const std::vector<Entity>& entities) const {
  const std::string domain = applicationIdentifier();
  std::vector<SearchableItem> items;
  items.reserve(entities.size());
  for (const Entity& entity : entities) items.push_back(itemOf(entity, domain));
  searchableIndex()->indexItems(std::move(items), nothing());
}

void EntityToolKit::removeFromSpotlight(const std::vector<Entity>& entities) const {
  std::vector<std::string> identifiers;
  identifiers.reserve(entities.size());
  for (const Entity& entity : entities) identifiers.push_back(entity.computed.hex);
  searchableIndex()->deleteItems(std::move(identifiers), nothing());
}

void EntityToolKit::resetSpotlight() const {
  searchableIndex()->deleteAllItems(nothing());
}

}  // namespace glyph
