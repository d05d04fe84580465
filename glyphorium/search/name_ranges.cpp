// SPDX-License-Identifier: MIT
#include "glyphorium/search/name_ranges.h"

#include <algorithm>

#include "glyphorium/search/words.h"

namespace glyph::search {

std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name) {
  std::vector<SearchRange> ranges;
  WordReader reader(name);
  while (reader.next()) {
    std::size_t size = 0;
    const auto cover = [&](const QueryWord& word, const Alternative& alternative) {
      // The dictionary is sorted and contains each word of a name. So a word of the name is in the
      // alternative if it is between the first and the last word of the alternative.
      if (reader.word() < index.words[alternative.words.first] ||
          reader.word() > index.words[alternative.words.last - 1]) {
        return;
      }
      const bool partly =
          alternative.match == WordMatch::prefix && reader.word().size() == reader.end() - reader.begin();
      size = std::max(size, partly ? word.text.size() : reader.end() - reader.begin());
    };
    for (const QueryWord& word : words) {
      for (const Alternative& alternative : word.alternatives) cover(word, alternative);
    }
    if (size > 0) ranges.push_back({reader.begin(), reader.begin() + size});
  }
  return ranges;
}

}  // namespace glyph::search
