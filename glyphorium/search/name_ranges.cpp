// SPDX-License-Identifier: MIT
#include "glyphorium/search/name_ranges.h"

#include <algorithm>

#include "glyphorium/search/words.h"

namespace glyph::search {

namespace {

// In bytes. If a query word of at least this size is a prefix of a word of the name, the prefix is
// highlighted, even if the name matches for another reason: "right" in "Rightwards".
constexpr std::size_t shortestHighlight = 3;

// Returns true if the word of the query may mean the word of the dictionary.
bool means(const Index& index, const QueryWord& word, std::string_view other) {
  // An alternative is a range of the sorted dictionary, and the dictionary contains each word of a name. So
  // it is enough to compare the word with the first and the last word of the range.
  return std::any_of(word.alternatives.begin(), word.alternatives.end(), [&](const Alternative& alternative) {
    return other >= index.words[alternative.words.first] && other <= index.words[alternative.words.last - 1];
  });
}

}  // namespace

std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name) {
  std::vector<SearchRange> ranges;
  WordReader reader(name);
  while (reader.next()) {
    std::size_t size = 0;
    const std::size_t whole = reader.end() - reader.begin();
    const bool isPlain = reader.word().size() == whole;
    for (const QueryWord& word : words) {
      const bool begins = isPlain && reader.word().starts_with(word.text);
      const bool matches = means(index, word, reader.word());
      if (begins && (matches || (word.text.size() >= shortestHighlight && !word.isStopWord)))
        size = std::max(size, word.text.size());
      else if (matches)
        size = whole;
    }
    if (size > 0) ranges.push_back({reader.begin(), reader.begin() + size});
  }
  return ranges;
}

}  // namespace glyph::search
