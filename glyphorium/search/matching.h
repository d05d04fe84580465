// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// A character that matches the words of a query.
struct Match {
  std::uint32_t cost;  ///< smaller is better: see match_costs.h
  std::uint32_t doc;
  /// The phrase that matches best. It is noPhrase if only the name of the group matches, or if the words are
  /// in several phrases of the character.
  std::uint32_t phrase;
};
inline constexpr std::uint32_t noPhrase = 0xFFFFFFFF;

struct MatchFilter {
  std::uint32_t languages = ~0u;  ///< bit i stands for Index::languages[i]
  /// Indexed by document number; 0 excludes the document. If the pointer is null, all documents may match.
  const std::vector<char>* docs = nullptr;
};

/// Returns the characters that match all words, in no particular order. Stop words need not match, unless all
/// words are stop words. There may be at most 255 words. Any number of threads may call this function at the
/// same time. Each thread that calls it keeps working memory until the thread ends.
std::vector<Match> matchWords(const Index& index, const std::vector<QueryWord>& words,
                              const MatchFilter& filter);

}  // namespace glyph::search
