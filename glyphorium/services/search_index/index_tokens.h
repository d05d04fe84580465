// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// The SQL statement that creates the full-text table of the items' tokens. By default, the tokenizer drops
/// symbols and the characters that are newer than its Unicode tables. With the categories given here, it
/// keeps these characters, and only white space and control characters separate tokens. indexTokens() does
/// all further splitting.
inline constexpr const char* tokenTable =
    "CREATE VIRTUAL TABLE token USING fts5(tok, detail=none, prefix='1 2 3',"
    " tokenize=\"unicode61 remove_diacritics 0 categories 'L* M* N* P* S* Co Cf Cn'\")";

/// Returns the tokens by which users find the item, in lower case and separated by spaces. The item's texts
/// are split at white space, and each piece is a token, whether it is a word or a symbol. If a piece contains
/// ASCII punctuation, the parts between the punctuation are tokens too: "&amp;" gives "&amp;" and "amp".
std::string indexTokens(const SearchableItem& item);

/// A query in the forms that the index needs. indexQuery() creates it from the text that the user has
/// typed.
struct IndexQuery {
  std::string match;    ///< the FTS5 expression; empty if the query has no words
  std::string exact;    ///< the words without the prefix "qv:"; compared with an item's symbol and identifier
  std::string lowered;  ///< `exact` in lower case; compared with an item's identifier and name
};
IndexQuery indexQuery(std::string_view text);

}  // namespace glyph
