// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

struct Answer {
  SearchResults results;
  /// Whether the query was understood as typed: as a code, a character, or words that match a character. If
  /// false, answer() either found nothing, or found results only after it corrected words or left words out.
  bool settled;
  /// Whether the query is a code, a character, or a whole text of a character.
  bool whole;
  /// Whether the best result is a Han character that matches by its meaning. Such a result is less certain:
  /// Han characters have so many meanings that even a mistyped word is often one of them.
  bool byMeaning;
};

/// Returns the characters that match any of the possible meanings of the query. All meanings are ranked
/// together, and each character is reported once. If no character matches all words and `persistently` is
/// true, words are corrected or left out.
Answer answer(const Index& index, const ParsedQuery& query, const SearchOptions& options, bool persistently);

}  // namespace glyph::search
