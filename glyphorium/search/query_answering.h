// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

struct Answer {
  SearchResults results;
  /// Whether the query was understood as typed: as a code, a character, or words that match a character. If
  /// not, the results are empty, or those of a changed query if the search is persistent.
  bool settled;
  /// Whether the query is a code, a character, or a whole text of a character.
  bool whole;
  /// Whether the best result is a Han character that matches by its meaning. These results are less certain:
  /// there are so many meanings that mistyped words match some, too.
  bool byMeaning;
};

/// Returns the characters that match any of the possible meanings of the query. All meanings are ranked
/// together, and each character is reported once. If no character matches all words and `persistently` is
/// true, words are corrected or left out.
Answer answer(const Index& index, const ParsedQuery& query, const SearchOptions& options, bool persistently);

}  // namespace glyph::search
