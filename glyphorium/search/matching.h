// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// A character that matches words of a query.
struct Match {
  std::uint32_t cost;  ///< smaller is better: see score.h
  std::uint32_t doc;
  /// The kind of the text that matches best. It is `name` if only the name of the group matches, or if the
  /// words are spread over several texts of the character.
  PhraseKind kind;
  bool whole;    ///< whether the query is a whole text of the character
  bool asTyped;  ///< whether no word was corrected
};

struct Matches {
  std::vector<Match> all;     ///< in no particular order
  Match best{};               ///< the match with the lowest cost; meaningless if `all` is empty
  std::uint32_t unmatched{};  ///< bit i: the best match lacks word i, which is not a stop word
};

struct MatchFilter {
  std::uint32_t languages = ~0u;  ///< bit i stands for Index::languages[i]
  /// Indexed by document number; 0 excludes the document. If the pointer is null, all documents may match.
  const std::vector<char>* docs = nullptr;
};

/// Returns the characters that match the words best: see score.h. Sets the weights of words that have none.
/// There may be at most 32 words. Any number of threads may call this function at the same time. Each thread
/// that calls it keeps working memory until the thread ends.
Matches matchWords(const Index& index, std::vector<QueryWord>& words, const MatchFilter& filter);

}  // namespace glyph::search
