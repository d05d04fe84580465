// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// Returns the characters that match any of the possible meanings of the query. All meanings are ranked
/// together, and each character is reported once.
SearchResults answer(const Index& index, const ParsedQuery& query, const SearchOptions& options);

}  // namespace glyph::search
