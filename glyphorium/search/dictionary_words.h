// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

#include "glyphorium/search/index.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// Adds to the word's alternatives: the word itself, its singulars and synonyms in the languages, and, if
/// `prefixes` is set, the words that begin with it.
void addDictionaryWords(const Index& index, QueryWord& word, const Languages& languages, bool prefixes);

/// The number of postings of all alternatives of the word: the more, the less the word says.
std::size_t postingCount(const Index& index, const QueryWord& word);

}  // namespace glyph::search
