// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/search/matching.h"

namespace glyph::search {

/// The characters that the words of a query find. A character may be in `matches` several times.
struct WordsFound {
  std::vector<Match> matches;
  std::vector<QueryWord> words;  ///< with the alternatives that matched
  bool approximate = false;      ///< the words had to be respelled or left out
};

/// The characters that match all words (folded). If there are none and `persistently` is set, tries other
/// readings of the words one after the other, the likeliest first, until one finds something.
WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently);

}  // namespace glyph::search
