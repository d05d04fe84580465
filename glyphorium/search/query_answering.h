// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

struct Answer {
  SearchResults results;
  /// Whether the query was understood as typed: a code, a character, or words that some character has. If
  /// not, and the search is persistent, the results are those of a changed query.
  bool settled;
  /// Whether a code, a character or a whole text of a character is the query.
  bool whole;
  /// Whether the best result is a Han character that a meaning found. There are so many of these that
  /// mistyped words find some too.
  bool byMeaning;
};

/// Returns the characters that match any of the possible meanings of the query. All meanings are ranked
/// together, and each character is reported once. If no character has all words and `persistently` is true,
/// words are corrected and left out.
Answer answer(const Index& index, const ParsedQuery& query, const SearchOptions& options, bool persistently);

}  // namespace glyph::search
