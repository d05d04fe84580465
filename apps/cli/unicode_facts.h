// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "glyphorium/entity/records.h"

/// The facts of the Unicode Character Database about a character, for its card.
namespace cli {

/// A line of the card: a label and a value.
using CardLine = std::pair<std::string, std::string>;

/// Returns the lines for a character or an emoji: its properties, how to type it, its escapes in programming
/// languages, related characters and look-alikes.
std::vector<CardLine> unicodeLines(const glyph::Entity& entity);

/// Returns the facts of unicodeLines() as a JSON object.
nlohmann::ordered_json unicodeJson(const glyph::Entity& entity);

}  // namespace cli
