// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// Tries every text that differs from word.text by one edit. An edit removes, inserts or replaces one byte,
/// or swaps two adjacent bytes, or replaces letters by letters that sound the same. Adds to word.alternatives
/// the dictionary words that are equal to an edited text, and the longer words that begin with an edited text
/// of at least four bytes. Then sorts all alternatives, best first. Adds nothing if word.text has fewer than
/// four bytes, because too many words would be one edit away. Skips edited texts with digits, because every
/// number is one edit away from other numbers. If word.alternatives is still empty and word.text has 8 to 32
/// bytes, adds the words with the same first letter that are two edits away.
void addMistypedWords(const Index& index, QueryWord& word);

}  // namespace glyph::search
