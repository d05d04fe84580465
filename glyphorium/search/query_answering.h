// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// The results of all that the query may be, each character once, ranked together.
SearchResults answer(const Index& index, const ParsedQuery& query, const SearchOptions& options);

}  // namespace glyph::search
