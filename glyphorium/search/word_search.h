// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/matching.h"

namespace glyph::search {

/// The characters that the words of a query find. A character may be in `matches` several times.
struct WordsFound {
  std::vector<Match> matches;
  std::vector<QueryWord> words;  ///< the words of the query, with the alternatives that matched
  bool lacksWords = false;       ///< whether the best match lacks a word
  bool approximate = false;      ///< whether the best match lacks a word, or matches a corrected word
};

/// Returns the characters that match the words best. The words must be folded. If no character matches all
/// words, the result depends on `persistently`: if true, words are corrected or left out; if false, the
/// result is empty.
WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently);

}  // namespace glyph::search
