// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "glyphorium/search/text_list.h"

namespace glyph::search {

/// How a word of the query matches a word of the dictionary, best first.
enum class WordMatch : std::uint8_t {
  whole,
  variant,  ///< a singular of the word, or a synonym
  prefix,
  group,  ///< the word is in the name of the character's group
  note,
  typo,        ///< one letter differs
  typoPrefix,  ///< one letter differs, and letters are missing at the end
};

/// Words of the dictionary that a word of the query may stand for.
struct Alternative {
  TextRange words;
  WordMatch match;
};

struct QueryWord {
  std::string text;                       ///< folded
  std::vector<Alternative> alternatives;  ///< best first
  bool isStopWord = false;                ///< need not match
};

}  // namespace glyph::search
