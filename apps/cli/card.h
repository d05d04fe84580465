// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/characters/display.h"
#include "glyphorium/entity/records.h"
#include "listing.h"
#include "output.h"

namespace cli {

using glyph::visibleSymbol;

/// Prints the entities as the listing says. A table has one row per entity: symbol, hex code, name and HTML
/// name.
void printEntities(Output& output, const std::vector<const glyph::Entity*>& entities, const Listing& listing);

/// Prints all facts about one character. The list must not be empty, and its entities may differ only in
/// their groups.
void printCard(Output& output, const std::vector<glyph::Entity>& entitiesOfOneCharacter);

/// Returns the JSON object of an entity: the fields of the record, `name`, the usage note in the user's
/// language under `note` if there is one, and the enrichment under `additional` if there is one.
std::string entityJson(const glyph::Entity& entity);

/// Returns the JSON object of a card: the members of entityJson(), and unicodeJson() under `unicode`.
std::string cardJson(const glyph::Entity& entity);

/// Prints a JSON array with one object per line. Call add() for each object, then end() once.
class JsonArray {
 public:
  explicit JsonArray(Output& output) : output_(output) {}
  void add(const std::string& object);
  void end();

 private:
  Output& output_;
  bool empty_ = true;
};

/// Prints a JSON array with one object per line.
void printJsonArray(Output& output, const std::vector<std::string>& objects);

}  // namespace cli
