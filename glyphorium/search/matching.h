// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"

namespace glyph::search {

/// A character that matches.
struct Match {
  std::uint32_t cost;  ///< see match_costs.h; smaller is better
  std::uint32_t doc;
  std::uint32_t phrase;  ///< that matches best; noPhrase if only its group or several phrases together match
};
inline constexpr std::uint32_t noPhrase = 0xFFFFFFFF;

struct MatchFilter {
  std::uint32_t languages = ~0u;            ///< a bit mask of Index::languages
  const std::vector<char>* docs = nullptr;  ///< by doc, whether it may match; nullptr: all may
};

/// The characters that match all words but the stop words, in no particular order. Any thread may call it;
/// each keeps working memory until it ends.
std::vector<Match> matchWords(const Index& index, const std::vector<QueryWord>& words,
                              const MatchFilter& filter);

}  // namespace glyph::search
