// SPDX-License-Identifier: MIT
// The texts that the desktop's search shows for a character, and the texts that the user can copy.
#pragma once

#include <string>

#include "glyphorium/entity/records.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace provider {

/// Converts an item of an index to an entity. The hex code is the item's identifier and the group is its
/// genre. The symbol and the name are those of the item. If the item has no symbol, its title is the
/// symbol.
glyph::Entity entityOf(const glyph::SearchableItem& item);

/// Returns the symbol in its visible form and the name, such as "→ Rightwards Arrow". U+200E precedes a
/// symbol that is written from right to left, so that the line still runs from left to right.
std::string label(const glyph::Entity& entity);

/// Returns the group and the code, such as "arrows · U+2192".
std::string description(const glyph::Entity& entity);

/// These functions return the text to copy, or an empty text if the character does not have this form.
std::string character(const glyph::Entity& entity);      ///< the symbol
std::string htmlReference(const glyph::Entity& entity);  ///< "&rarr;", or "&#x2798;" if it has no HTML name
std::string codePoint(const glyph::Entity& entity);      ///< "U+2192", or several separated by spaces

}  // namespace provider
