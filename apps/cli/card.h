// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/text/visible_symbol.h"
#include "output.h"

namespace cli {

using glyph::visibleSymbol;

/// Entities as a list: symbol, hex, name and HTML name, or their JSON objects.
void printEntities(Output& output, const std::vector<const glyph::Entity*>& entities, bool json);

/// Everything about one character: all its entities differ in their groups only.
void printCard(Output& output, const std::vector<glyph::Entity>& entitiesOfOneCharacter);

/// The JSON object of an entity: the record's own fields, `name`, and its enrichment under `additional`.
std::string entityJson(const glyph::Entity& entity);

/// Prints a JSON array of objects, one a line, as they come.
class JsonArray {
 public:
  explicit JsonArray(Output& output) : output_(output) {}
  void add(const std::string& object);
  void end();

 private:
  Output& output_;
  bool empty_ = true;
};

/// A JSON array of objects, one a line.
void printJsonArray(Output& output, const std::vector<std::string>& objects);

}  // namespace cli
