// SPDX-License-Identifier: MIT
#include <algorithm>
#include <nlohmann/json.hpp>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/selected_entities.h"
#include "lookup.h"

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

int listEntities(Output& output, const std::vector<std::string>& groups, bool all, bool json) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  std::vector<const Entity*> entities;
  if (groups.empty() && !all) {
    for (const Entity& entity : glyph::selectedEntities().get()) entities.push_back(&entity);
    if (entities.empty()) {
      complain("the displayed groups contain no characters; 'glyphorium display add GROUP' displays more");
    }
  }
  const auto append = [&](const std::vector<Entity>& from, const std::string* group) {
    for (const Entity& entity : from) {
      if (!group || entity.computed.group == *group) entities.push_back(&entity);
    }
  };
  if (all) {
    append(catalog.buildInEntities(), nullptr);
    append(catalog.allCustomEntities, nullptr);
  }
  for (const std::string& name : groups) {
    const auto group = groupNamed(name);
    if (!group) {
      complain(unknownGroup(name));
      return wrongUse;
    }
    append(catalog.buildInEntities(), &*group);
    append(catalog.allCustomEntities, &*group);
  }
  printEntities(output, entities, json);
  return entities.empty() ? nothingFound : found;
}

int showCharacters(Output& output, const std::vector<std::string>& arguments, bool json) {
  glyph::glyphorium().configure();
  std::vector<Character> characters;
  int exitCode = found;
  for (const std::string& argument : arguments) {
    std::vector<Character> resolved = resolve(argument).characters;
    if (resolved.empty()) {
      complain(unknownCharacter(argument));
      exitCode = nothingFound;
    }
    // An argument may contain a character several times, as joined emoji do. Show such a character once.
    for (auto one = resolved.begin(); one != resolved.end(); ++one) {
      const bool isShown = std::any_of(
          resolved.begin(), one, [&](const Character& earlier) { return earlier.front() == one->front(); });
      if (!isShown) characters.push_back(*one);
    }
  }
  if (json) {
    std::vector<std::string> objects;
    for (const auto& entities : characters) {
      for (const Entity& entity : entities) objects.push_back(entityJson(entity));
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
