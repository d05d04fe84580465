// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/matching.h"
#include "glyphorium/search/words.h"

namespace glyph::search {
namespace {

void addVariant(const Index& index, QueryWord& word, std::string_view variant) {
  const TextRange range = index.words.exactly(variant);
  if (!range.empty()) word.alternatives.push_back({range, WordMatch::variant});
}

// The singulars that the word may be the plural of, by the endings of the languages: an English "pawn" is no
// more than one paw.
void addSingulars(const Index& index, QueryWord& word, std::uint32_t languages) {
  const std::string_view text = word.text;
  if (text.size() < 4 || text.ends_with("ss")) return;
  if (text.ends_with("s")) addVariant(index, word, text.substr(0, text.size() - 1));
  if (text.ends_with("es")) addVariant(index, word, text.substr(0, text.size() - 2));
  if (text.ends_with("ies")) addVariant(index, word, std::string(text.substr(0, text.size() - 3)) + "y");
  if (index.hasLanguage("de", languages)) {
    if (text.ends_with("en") || text.ends_with("er"))
      addVariant(index, word, text.substr(0, text.size() - 2));
    if (text.ends_with("e") || text.ends_with("n")) addVariant(index, word, text.substr(0, text.size() - 1));
  }
  if (index.hasLanguage("it", languages) && (text.ends_with("e") || text.ends_with("i"))) {
    const std::string stem(text.substr(0, text.size() - 1));
    for (const char* const ending : {"a", "e", "o", "ia"}) {
      if (!text.ends_with(ending)) addVariant(index, word, stem + ending);
    }
  }
}

// The words behind the word in its line of the synonyms, separated by tabs.
std::string_view synonymsOf(std::string_view word, std::string_view lines) {
  while (!lines.empty()) {
    // The line in the middle; npos + 1 is 0.
    const std::size_t begin = lines.rfind('\n', lines.size() / 2) + 1;
    const std::string_view line = lines.substr(begin, lines.find('\n', begin) - begin);
    const std::string_view head = line.substr(0, line.find('\t'));
    if (head == word) return line.substr(head.size() + 1);
    lines =
        word < head ? lines.substr(0, begin) : lines.substr(std::min(begin + line.size() + 1, lines.size()));
  }
  return {};
}

void addSynonyms(const Index& index, QueryWord& word, std::uint32_t languages) {
  for (std::size_t list = 0; list < searchSynonymCount; ++list) {
    if (!index.hasLanguage(searchSynonymList[list].language, languages)) continue;
    for (std::string_view rest = synonymsOf(word.text, searchSynonymList[list].lines); !rest.empty();) {
      const std::string_view synonym = rest.substr(0, rest.find('\t'));
      addVariant(index, word, synonym);
      rest.remove_prefix(std::min(synonym.size() + 1, rest.size()));
    }
  }
}

}  // namespace

void addDictionaryWords(const Index& index, QueryWord& word, std::uint32_t languages, bool prefixes) {
  TextRange range = index.words.withPrefix(word.text);
  if (!range.empty() && index.words[range.first] == word.text) {
    word.alternatives.push_back({{range.first, range.first + 1}, WordMatch::whole});
    ++range.first;
  }
  // What begins words but is none is rather incomplete than a plural: "rocke" is no "rock".
  if (!word.alternatives.empty() || range.empty()) addSingulars(index, word, languages);
  addSynonyms(index, word, languages);
  if (prefixes && !range.empty()) word.alternatives.push_back({range, WordMatch::prefix});
}

std::size_t postingCount(const Index& index, const QueryWord& word) {
  std::size_t count = 0;
  for (const Alternative& alternative : word.alternatives)
    count += index.postingsOf(alternative.words).size();
  return count;
}

std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name) {
  std::vector<SearchRange> ranges;
  WordReader reader(name);
  while (reader.next()) {
    std::size_t size = 0;
    const auto cover = [&](const QueryWord& word, const Alternative& alternative) {
      // Every word of a name is in the dictionary, so it is in the range if it is between its ends.
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
