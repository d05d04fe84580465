// SPDX-License-Identifier: MIT
#include "lookup.h"

#include "glyphorium/search/search.h"
#include "glyphorium/text/text_pieces.h"

namespace cli {

std::string unknownCharacter(const std::string& argument) {
  const auto found = glyph::Search::ofCatalog().query(argument, {1, std::nullopt, {}}).results;
  std::string message = "no character is '" + argument + "'";
  if (found.empty()) return message;
  const glyph::Entity nearest = *glyph::buildInEntity(found.front().index);
  return message + "; did you mean " + nearest.computed.hex + " (" + nearest.name() + ")?";
}

std::string unknownGroup(std::string_view name) {
  const std::string message = "there is no group '" + std::string(name) + "'; ";
  const std::vector<std::string> names = nearestTexts(name, glyph::groupNames());
  if (names.empty()) return message + "'glyphorium groups' lists them";
  return message + "did you mean '" + glyph::joined(names, "' or '") + "'?";
}

}  // namespace cli
