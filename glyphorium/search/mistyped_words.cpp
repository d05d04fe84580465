// SPDX-License-Identifier: MIT
#include "glyphorium/search/mistyped_words.h"

#include <algorithm>
#include <string>

namespace glyph::search {
namespace {

// Walks the sorted dictionary like a prefix tree: all words of a range begin with the same `depth` bytes. At
// each depth it tries every edit; the rest of the query's word must then follow unchanged. This looks at some
// hundred ranges. Comparing each word would take a thousand times as many steps.
class MistypedWords {
 public:
  MistypedWords(const Index& index, QueryWord& word) : index_(index), word_(word), text_(word.text) {}

  void find() {
    TextRange range{0, index_.words.size()};
    std::string prefix;
    for (std::size_t depth = 0;; ++depth) {
      editAt(depth, prefix, range);
      if (depth == text_.size()) break;
      prefix += text_[depth];
      range = index_.words.withPrefix(prefix, range);
      if (range.empty()) break;
    }
    const auto byMatch = [](const Alternative& a, const Alternative& b) { return a.match < b.match; };
    std::stable_sort(word_.alternatives.begin(), word_.alternatives.end(), byMatch);
  }

 private:
  // Edits the text behind its first `depth` bytes. All words of the range begin with these, the `prefix`.
  void editAt(std::size_t depth, const std::string& prefix, TextRange range) {
    const std::string_view rest = text_.substr(depth);
    if (!rest.empty()) accept(prefix, rest.substr(1), range);  // leave a letter out
    if (rest.size() >= 2 && rest[0] != rest[1])
      accept(prefix + rest[1] + rest[0], rest.substr(2), range);  // exchange two letters
    // Replace the letter by each one that follows in the dictionary, and put each of these in.
    for (std::uint32_t first = range.first; first < range.last;) {
      const std::string_view word = index_.words[first];
      if (word.size() == depth) {
        ++first;
        continue;
      }
      const std::string longer = prefix + word[depth];
      const TextRange below = index_.words.withPrefix(longer, {first, range.last});
      if (!rest.empty() && word[depth] != rest[0]) accept(longer, rest.substr(1), below);
      if (rest.empty() || word[depth] != rest[0]) accept(longer, rest, below);
      first = below.last;
    }
  }

  void accept(const std::string& prefix, std::string_view rest, TextRange within) {
    std::string wanted = prefix;
    wanted += rest;
    TextRange range = index_.words.withPrefix(wanted, within);
    if (range.empty() || wanted == text_ || hasDigit(wanted)) return;
    if (index_.words[range.first] == wanted) {
      word_.alternatives.push_back({{range.first, range.first + 1}, WordMatch::typo});
      ++range.first;
    }
    if (!range.empty() && wanted.size() >= leastPrefix)
      word_.alternatives.push_back({range, WordMatch::typoPrefix});
  }

  static bool hasDigit(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos;
  }

  static constexpr std::size_t leastPrefix = 4;  // too many words begin with a shorter one

  const Index& index_;
  QueryWord& word_;
  std::string_view text_;
};

constexpr std::size_t leastLetters = 4;

}  // namespace

void addMistypedWords(const Index& index, QueryWord& word) {
  if (word.text.size() >= leastLetters) MistypedWords(index, word).find();
}

}  // namespace glyph::search
