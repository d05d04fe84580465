// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// Returns the tokens by which users find the item, in lower case and separated by spaces. The item's texts
/// are split at white space, and each piece is a token, whether it is a word or a symbol. If a piece contains
/// ASCII punctuation, the parts between the punctuation are tokens too: "&amp;" gives "&amp;" and "amp".
std::string indexTokens(const SearchableItem& item);

/// A query in the forms that the index needs. indexQuery() creates it from the text that the user has
/// typed.
struct IndexQuery {
  /// The words and symbols, in lower case. For each of them, an item must have a token that begins with it.
  /// Empty if the query has none.
  std::vector<std::string> terms;
  std::string exact;    ///< the words without the prefix "qv:"; compared with an item's symbol and identifier
  std::string lowered;  ///< `exact` in lower case; compared with an item's identifier and name
};
IndexQuery indexQuery(std::string_view text);

/// The tokens of all items of an index. They are searched from one end to the other: for 17,000 items, this
/// takes two tenths of a millisecond. An inverted index would find them faster, but needs more time to write
/// than the items themselves.
class TokenTexts {
 public:
  /// Adds an item. `tokens` comes from indexTokens().
  void add(std::int64_t id, std::string_view tokens);
  /// Removes all items. The next ones have about so many bytes of tokens, or fewer.
  void clear(std::size_t bytes);
  /// Returns the identifiers of the items that the terms find, in the order in which they were added.
  std::vector<std::int64_t> find(const std::vector<std::string>& terms) const;

 private:
  std::string text_;                                          // for each item its tokens, each after a space
  std::vector<std::pair<std::size_t, std::int64_t>> begins_;  // for each item its begin in text_, and its id
};

}  // namespace glyph
