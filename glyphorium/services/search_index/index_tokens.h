// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// What an item is found by, separated by spaces: each piece between white space of its texts, in lower case,
/// as it is and again split at ASCII punctuation ("&amp;" also as "amp"). Symbols are pieces like words.
std::string indexTokens(const SearchableItem& item);

/// What people typed, made ready for the index.
struct IndexQuery {
  std::string match;    ///< the FTS5 expression; empty where nothing was asked for
  std::string exact;    ///< the text that an exact symbol equals
  std::string lowered;  ///< the same in lower case, that an exact identifier or name equals
};
IndexQuery indexQuery(std::string_view text);

}  // namespace glyph
