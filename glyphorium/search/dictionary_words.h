// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// Looks up word.text in the dictionary and adds what it finds to word.alternatives: the word itself, then
/// its singulars and synonyms in the given languages. If `prefixes` is true, also adds the longer words that
/// begin with word.text, and the synonyms of longer words.
void addDictionaryWords(const Index& index, QueryWord& word, const Languages& languages, bool prefixes);

/// Returns the number of postings of all alternatives of the word. A posting is one occurrence of a
/// dictionary word in a text of a character. The more postings a word has, the less it narrows the search.
std::size_t postingCount(const Index& index, const QueryWord& word);

}  // namespace glyph::search
