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
  bool approximate = false;      ///< whether the matches are those of respelled or fewer words
};

/// Returns the characters that match all words. The words must be folded. If no character matches and
/// `persistently` is true, tries other readings of the words, the most likely reading first, until one of
/// them finds a character.
WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently);

}  // namespace glyph::search
