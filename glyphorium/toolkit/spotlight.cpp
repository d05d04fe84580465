// SPDX-License-Identifier: MIT
#include "glyphorium/services/application/application.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

// Splits the text at each blank and appends the pieces, including empty pieces.
void appendPieces(std::string_view text, std::vector<std::string>& pieces) {
  for (;;) {
    const std::size_t blank = text.find(' ');
    pieces.emplace_back(text.substr(0, blank));
    if (blank == std::string_view::npos) return;
    text.remove_prefix(blank + 1);
  }
}

}  // namespace

SearchableItem EntityToolKit::searchableItem(const Entity& entity) const {
  SearchableItem item;
  item.uniqueIdentifier = entity.computed.hex;
  item.domainIdentifier = applicationIdentifier();
  item.contentType = "Glyph";
  const std::string name = entity.name();
  item.symbol = entity.computed.symbol;
  item.title = item.symbol + "\t" + name;
  if (entity.additional) item.comment = entity.additional->localizedAdvice();
  item.genre = entity.computed.group;
  item.keywords = {entity.computed.symbol, name, "qv:", "qv: ", "entity"};
  appendPieces(entity.searchString(), item.keywords);
  return item;
}

void EntityToolKit::addToSpotlight(const std::vector<Entity>& entities,
                                   SearchableIndex::Completion completion) const {
  std::vector<SearchableItem> items;
  items.reserve(entities.size());
  for (const Entity& entity : entities) items.push_back(searchableItem(entity));
  searchableIndex()->indexItems(std::move(items), std::move(completion));
}

void EntityToolKit::removeFromSpotlight(const std::vector<Entity>& entities) const {
  std::vector<std::string> identifiers;
  identifiers.reserve(entities.size());
  for (const Entity& entity : entities) identifiers.push_back(entity.computed.hex);
  searchableIndex()->deleteItems(std::move(identifiers), {});
}

void EntityToolKit::resetSpotlight() const {
  searchableIndex()->deleteAllItems({});
}

}  // namespace glyph
