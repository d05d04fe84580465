// SPDX-License-Identifier: MIT
#include "glyphorium/search/dictionary_words.h"

#include "glyphorium/search/text_parts.h"

namespace glyph::search {
namespace {

constexpr std::size_t shortestPlural = 4;  // in bytes; most shorter words that end in "s" are not plurals

constexpr std::size_t shortestSynonymPrefix = 3;

void addVariant(const Index& index, QueryWord& word, std::string_view variant, WordMatch match) {
  const TextRange range = index.words.exactly(variant);
  if (!range.empty()) word.alternatives.push_back({range, match});
}

void addSynonyms(const Index& index, QueryWord& word, const SearchLanguage& language,
                 std::string_view known) {
  for (std::string_view rest = synonymsOf(language, known); !rest.empty();)
    addVariant(index, word, takePart(rest, '\t'), WordMatch::variant);
}

}  // namespace

void addDictionaryWords(const Index& index, QueryWord& word, const Languages& languages, bool prefixes) {
  TextRange range = index.words.withPrefix(word.text);
  const bool isWord = !range.empty() && index.words[range.first] == word.text;
  if (isWord) {
    word.alternatives.push_back({{range.first, range.first + 1}, WordMatch::whole});
    ++range.first;
  }
  // If the text is only a prefix of dictionary words, it is an incomplete word rather than a plural: "rocke"
  // is the beginning of "rocket", not a form of "rock".
  if ((isWord || range.empty()) && word.text.size() >= shortestPlural) {
    for (const SearchLanguage* const language : languages) {
      for (const std::string& singular : singularsOf(*language, word.text)) {
        addVariant(index, word, singular, WordMatch::variant);
        addSynonyms(index, word, *language, singular);
      }
    }
  }
  for (const SearchLanguage* const language : languages) addSynonyms(index, word, *language, word.text);
  if (!prefixes) return;
  if (!range.empty()) word.alternatives.push_back({range, WordMatch::prefix});
  if (word.text.size() < shortestSynonymPrefix) return;
  for (const SearchLanguage* const language : languages) {
    for (const std::string_view synonym : synonymsOfLongerWords(*language, word.text))
      addVariant(index, word, synonym, WordMatch::prefix);
  }
}

std::size_t postingCount(const Index& index, const QueryWord& word) {
  std::size_t count = 0;
  for (const Alternative& alternative : word.alternatives) {
    if (!isLetterOfWord(word, alternative)) count += index.postingsOf(alternative.words).size();
  }
  return count;
}

}  // namespace glyph::search
