// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "glyphorium/search/text_list.h"

namespace glyph::search {

/// How a word of the query matches a word of the dictionary, from best to worst.
enum class WordMatch : std::uint8_t {
  whole,
  variant,     ///< the dictionary has a singular or a synonym of the word
  prefix,      ///< the word is the beginning of a dictionary word
  typo,        ///< the word is mistyped
  group,       ///< the word is in the name of the character's group
  typoPrefix,  ///< the word is mistyped, and letters are missing at the end
};

/// Words of the dictionary that a word of the query may mean.
struct Alternative {
  TextRange words;
  WordMatch match;
};

/// A word of the query.
struct QueryWord {
  std::string text;                       ///< folded
  std::vector<Alternative> alternatives;  ///< the best alternative is first
  bool isStopWord = false;                ///< whether a character need not match the word
  std::uint32_t weight = 0;               ///< see score.h
};

/// Returns true if the word is a single letter and the alternative consists of longer words that begin with
/// this letter. Very many words begin with the same letter. So the letter only helps to choose among the
/// characters that match the other words of the query.
inline bool isLetterOfWord(const QueryWord& word, const Alternative& alternative) {
  return word.text.size() == 1 && alternative.match == WordMatch::prefix;
}

}  // namespace glyph::search
