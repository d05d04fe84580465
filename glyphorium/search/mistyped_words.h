// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// Adds to the word's alternatives the words of the dictionary that differ from it by one edit: a byte left
/// out, put in, replaced, or exchanged with its neighbour. Adds nothing for a word under four bytes, which
/// would be near too many words, and no words with digits, because every number is near other numbers.
void addMistypedWords(const Index& index, QueryWord& word);

}  // namespace glyph::search
