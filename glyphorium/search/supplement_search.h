// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/search/index.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// Searches the catalog and the supplement, and ranks the results together. SearchResult::index is a "place":
/// a number that stands for a character or an emoji. A place below preparedRowCount() is the position of an
/// entity of the catalog. Any other place is the sum of preparedRowCount() and the characterKey() of the
/// character. Names of skin tones in the text choose variants of emoji. `catalog` is the index of the
/// catalog, perhaps with changed priors. `text` must not contain "group:", and `options` must have no groups.
SearchResults queryEverything(const Index& catalog, std::string_view text, const SearchOptions& options);

/// Returns true if the query itself contains the character or its code.
inline bool isInQuery(const SearchResult& result) {
  return result.field == SearchField::character || result.field == SearchField::code;
}

/// Returns the place of a character or an emoji. Returns nullopt if the text is neither.
std::optional<std::size_t> placeOf(std::string_view text);

/// Returns the UTF-8 text of the character or emoji with this place.
std::string textAt(std::size_t place);

}  // namespace glyph::search
