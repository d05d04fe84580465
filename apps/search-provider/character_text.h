// SPDX-License-Identifier: MIT
// An item of the index as people read and copy it.
#pragma once

#include <string>

#include "glyphorium/services/search_index/searchable_index.h"

namespace provider {

std::string symbolOf(const glyph::SearchableItem& item);  ///< empty where the title has none
std::string nameOf(const glyph::SearchableItem& item);

/// Symbol and name, such as "→ Rightwards Arrow": the name alone where the symbol shows nothing, and written
/// so that the symbol neither turns the direction of the line nor sits on what stands before it.
std::string label(const glyph::SearchableItem& item);

/// Group and code, such as "arrows · U+2192".
std::string description(const glyph::SearchableItem& item);

/// What is copied.
std::string character(const glyph::SearchableItem& item);      ///< the symbol; the title where there is none
std::string htmlReference(const glyph::SearchableItem& item);  ///< "&rarr;", or "&#x2798;" without a name
std::string codePoint(const glyph::SearchableItem& item);      ///< "U+2192", several separated by a blank

}  // namespace provider
