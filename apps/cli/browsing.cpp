// SPDX-License-Identifier: MIT
#include <algorithm>
#include <deque>
#include <nlohmann/json.hpp>
#include <optional>
#include <unordered_set>

#include "card.h"
#include "commands.h"
#include "encoding.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/text/unicode_text.h"
#include "lookup.h"
#include "regular_expression.h"

namespace cli {
using glyph::Entity;

int listGroups(Output& output, bool json) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const std::string& group : glyph::allBuildInEntityGroups()) {
    const auto place = catalog.allEntityGroupNamesWithCount->find(group);
    const std::int64_t count = place == catalog.allEntityGroupNamesWithCount->end() ? 0 : place->second;
    objects.push_back(nlohmann::ordered_json{{"name", group}, {"count", count}}.dump());
    rows.push_back({group, output.faint(std::to_string(count))});
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  return found;
}

int listEntities(Output& output, const ListRequest& request, const Listing& listing) {
  std::optional<RegularExpression> pattern;
  if (!request.regex.empty()) {
    pattern.emplace(request.regex);
    if (!pattern->fault().empty()) {
      complain("'" + request.regex + "' is no regular expression: " + pattern->fault());
      return wrongUse;
    }
  }
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  using Key = glyph::UserInfluencedEntityKey;
  const std::vector<Entity> added = addedEntities();
  std::vector<const Entity*> entities;
  // Adds the entities whose characters are not in the list yet.
  const auto appendOthers = [&](const std::vector<Entity>& from) {
    std::unordered_set<std::string_view> known;
    for (const Entity* const entity : entities) known.insert(entity->computed.hex.view());
    for (const Entity& entity : from) {
      if (!known.contains(entity.computed.hex.view())) entities.push_back(&entity);
    }
  };
  int exitCode = found;
  if (request.all && !isReadable(Key::customAddedEntities)) exitCode = notRead;  // the list is still printed
  if (request.groups.empty() && !request.all) {
    if (!isReadable(Key::displayedGroups) || !isReadable(Key::customAddedEntities)) return notRead;
    for (const Entity& entity : glyph::selectedEntities().get()) entities.push_back(&entity);
    const std::vector<std::string> groups = catalog.selectedGroups();
    // The catalog leaves out those that the name table does not have.
    if (std::find(groups.begin(), groups.end(), glyph::customGroup) != groups.end()) appendOthers(added);
    if (entities.empty()) {
      complain("the displayed groups contain no characters; 'glyphorium display add GROUP' displays more");
    }
  }
  const auto append = [&](const std::vector<Entity>& from, const std::string* group) {
    for (const Entity& entity : from) {
      if (!group || entity.computed.group == *group) entities.push_back(&entity);
    }
  };
  if (request.all) {
    append(catalog.buildInEntities(), nullptr);
    append(added, nullptr);
  }
  std::deque<std::vector<Entity>> sets;
  for (const std::string& name : request.groups) {
    const auto group = groupNamed(name);
    if (!group) {
      auto set = charactersOfSet(name);
      if (!set || set->empty()) {
        complain(set ? unknownSet(name) : unknownGroup(name));
        return set ? nothingFound : wrongUse;
      }
      for (const Entity& entity : sets.emplace_back(*std::move(set))) entities.push_back(&entity);
      continue;
    }
    if (*group == glyph::customGroup && !isReadable(Key::customAddedEntities)) return notRead;
    append(catalog.buildInEntities(), &*group);
    append(added, &*group);
    // "emoji" is also the set of all emoji. Those that are not in the group follow it.
    if (auto set = charactersOfSet(*group)) appendOthers(sets.emplace_back(*std::move(set)));
  }
  std::deque<Entity> toned;
  if (const auto tone = glyph::skinToneNamed(request.tone)) {
    for (const Entity*& entity : entities) {
      const std::string text = glyph::withSkinTone(entity->computed.symbol, *tone);
      if (text != entity->computed.symbol.view()) entity = &toned.emplace_back(glyph::supplementEntity(text));
    }
  }
  if (pattern) {
    std::erase_if(entities, [&](const Entity* entity) { return !pattern->matches(entity->name()); });
    if (entities.empty()) complain("no name matches '" + request.regex + "'");
  }
  printEntities(output, entities, listing);
  return entities.empty() ? nothingFound : exitCode;
}

int showCharacters(Output& output, const std::vector<std::string>& arguments, const std::string& encoding,
                   const Listing& listing) {
  glyph::glyphorium().configure();
  std::vector<Character> characters;
  int exitCode = found;
  for (const std::string& argument : arguments) {
    std::vector<Character> resolved;
    if (!encoding.empty()) {
      const auto bytes = bytesOfHex(argument);
      const auto text = bytes ? textOfBytes(encoding, *bytes) : std::nullopt;
      if (!text) {
        complain(bytes ? "the bytes " + hexOfBytes(*bytes) + " are no text in " + encoding
                       : "'" + argument + "' is no list of bytes such as 80 or 'a4 a2'");
        exitCode = bytes ? nothingFound : wrongUse;
        continue;
      }
      for (const char32_t point : glyph::codePoints(*text)) resolved.push_back({entityOfCodePoint(point)});
    } else if (const auto set = charactersOfSet(argument)) {
      for (const Entity& entity : *set) resolved.push_back({entity});
    } else {
      resolved = resolve(argument).characters;
    }
    if (resolved.empty()) {
      complain(unknownCharacter(argument));
      exitCode = nothingFound;
    }
    // Show each character of an argument once, even if the argument contains it several times, like the
    // joiners in an emoji.
    for (auto one = resolved.begin(); one != resolved.end(); ++one) {
      const bool isShown = std::any_of(
          resolved.begin(), one, [&](const Character& earlier) { return earlier.front() == one->front(); });
      if (!isShown) characters.push_back(*one);
    }
  }
  if (listing.tsv || !listing.format.empty()) {
    std::vector<const Entity*> entities;
    for (const Character& character : characters) entities.push_back(&character.front());
    printListing(output, entities, listing);
    return exitCode;
  }
  if (listing.json) {
    std::vector<std::string> objects;
    for (const auto& entities : characters) {
      for (const Entity& entity : entities) objects.push_back(cardJson(entity));
    }
    printJsonArray(output, objects);
    return exitCode;
  }
  for (const auto& entities : characters) {
    if (&entities != &characters.front()) output.printLine();
    printCard(output, entities);
  }
  return exitCode;
}

}  // namespace cli
