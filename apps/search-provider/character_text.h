// SPDX-License-Identifier: MIT
// A character as people read and copy it from the desktop's search.
#pragma once

#include <string>

#include "glyphorium/entity/records.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace provider {

/// The item of an index as an entity: its hex code is the identifier, its symbol and name are those of the
/// title, its group is the genre.
glyph::Entity entityOf(const glyph::SearchableItem& item);

/// Symbol and name, such as "→ Rightwards Arrow": the symbol in its visible form, and written so that it does
/// not turn the direction of the line.
std::string label(const glyph::Entity& entity);

/// Group and code, such as "arrows · U+2192".
std::string description(const glyph::Entity& entity);

/// What is copied.
std::string character(const glyph::Entity& entity);      ///< the symbol
std::string htmlReference(const glyph::Entity& entity);  ///< "&rarr;", or "&#x2798;" without a name
std::string codePoint(const glyph::Entity& entity);      ///< "U+2192", several separated by a blank

}  // namespace provider
