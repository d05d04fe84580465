// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// The table of what items are found by. Only white space separates tokens: by default the tokenizer drops
/// symbols, and characters newer than its tables. What else is to be a token of its own, indexTokens() splits
/// off.
inline constexpr const char* tokenTable =
    "CREATE VIRTUAL TABLE token USING fts5(tok, detail=none, prefix='1 2 3',"
    " tokenize=\"unicode61 remove_diacritics 0 categories 'L* M* N* P* S* Co Cf Cn'\")";

/// The tokens by which an item is found, separated by spaces: each piece between white space of its texts, in
/// lower case, as it is and again split at ASCII punctuation ("&amp;" also as "amp"). Symbols are pieces like
/// words.
std::string indexTokens(const SearchableItem& item);

/// A query as people type it, made ready for the index.
struct IndexQuery {
  std::string match;    ///< the FTS5 expression; empty where the query holds no word
  std::string exact;    ///< the text that an exact symbol equals
  std::string lowered;  ///< the same in lower case, that an exact identifier or name equals
};
IndexQuery indexQuery(std::string_view text);

}  // namespace glyph
