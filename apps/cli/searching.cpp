// SPDX-License-Identifier: MIT
#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/search/catalog_search.h"
#include "glyphorium/state/selected_entities.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

constexpr std::size_t noLimit = 1'000'000;

// Returns the name, with the parts that match the query highlighted.
std::string highlighted(const Output& output, const std::string& name, const glyph::SearchResult& result) {
  std::string text;
  std::size_t at = 0;
  for (const glyph::SearchRange& range : result.nameRanges) {
    text +=
        name.substr(at, range.begin - at) + output.strong(name.substr(range.begin, range.end - range.begin));
    at = range.end;
  }
  return text + name.substr(at);
}

// Returns the group of the character. For a Han character without a group, returns its English meaning.
std::string placeOf(const Entity& entity) {
  if (!entity.computed.group.empty()) return std::string(entity.computed.group);
  return glyph::characterFacts(static_cast<char32_t>(entity.computed.decimal)).hanDefinition;
}

// Returns the JSON object, with the member "approximate" added if `approximate` is true.
std::string marked(std::string object, bool approximate) {
  if (approximate) object.insert(object.rfind('}'), ",\"approximate\":true");
  return object;
}

// If the query is a character that belongs to no group, returns a text that says so, for the end of an error
// message. Empty for other queries.
std::string beyondTheCatalog(const std::string& query) {
  const std::vector<Character> characters = resolve(query).characters;
  if (characters.empty()) return {};
  const Entity& entity = characters.front().front();
  const auto codePoint = static_cast<char32_t>(entity.computed.decimal);
  // The catalog contains the character, but the request excludes its group.
  if (entity.name().empty() || glyph::Search::ofCatalog().indexOf(codePoint)) return {};
  return "; no group contains " + entity.computed.hex + " (" + entity.name() + "), but 'glyphorium show " +
         entity.computed.hex + "' describes it";
}

}  // namespace

int searchCatalog(Output& output, const SearchRequest& request, const Listing& listing) {
  glyph::SearchOptions options;
  options.limit = request.limit == 0 ? noLimit : static_cast<std::size_t>(request.limit);
  for (const std::string& name : request.groups) {
    const auto group = groupNamed(name);
    if (!group) {
      complain(unknownGroup(name));
      return wrongUse;
    }
    options.groups.push_back(*group);
  }
  const std::string query = joined(request.words, " ");

  std::optional<glyph::CatalogSearch> catalog;
  glyph::SearchResults found;
  if (request.displayed) {
    glyph::glyphorium().configure();
    using Key = glyph::UserInfluencedEntityKey;
    if (!isReadable(Key::displayedGroups) || !isReadable(Key::customAddedEntities)) return notRead;
    found = glyph::Search(glyph::selectedEntities().get()).query(query, options);
  } else {
    found = catalog.emplace().query(query, options);
  }
  const auto entityOf = [&](const glyph::SearchResult& result) {
    return catalog ? catalog->entity(result) : glyph::selectedEntities().get()[result.index];
  };
  std::vector<Entity> entities;
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const glyph::SearchResult& result : found.results) {
    const Entity entity = entityOf(result);
    if (listing.json) {
      objects.push_back(marked(entityJson(entity), found.approximate));
      continue;
    }
    if (!listing.isTable()) {
      entities.push_back(entity);
      continue;
    }
    rows.push_back({output.accent(visibleSymbol(entity.computed.symbol)), output.faint(entity.computed.hex),
                    highlighted(output, entity.name(), result), output.faint(placeOf(entity))});
    if (found.approximate && !output.onTerminal()) rows.back().push_back("approximate");
  }
  if (found.results.empty()) {
    if (listing.json) printJsonArray(output, {});
    complain("nothing found for '" + query + "'" + beyondTheCatalog(query));
    return nothingFound;
  }
  const bool isOnTerminal = output.onTerminal() && listing.isTable();
  if (isOnTerminal && found.approximate)
    output.printLine(output.faint("there is no exact match; these are similar"));
  if (listing.isTable()) {
    output.printTable(rows);
  } else if (listing.json) {
    printJsonArray(output, objects);
  } else {
    std::vector<const Entity*> pointers;
    for (const Entity& entity : entities) pointers.push_back(&entity);
    printListing(output, pointers, listing);
  }
  if (isOnTerminal && found.total > found.results.size()) {
    output.printLine(output.faint(std::to_string(found.results.size()) + " of " +
                                  std::to_string(found.total) + "; --limit shows more"));
  }
  if (!request.copy) return cli::found;
  return copyEntities(output, {entityOf(found.results.front())}, "character");
}

}  // namespace cli
