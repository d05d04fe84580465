// SPDX-License-Identifier: MIT
#include "glyphorium/search/mistyped_words.h"

#include <algorithm>
#include <array>
#include <string>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/text_parts.h"

namespace glyph::search {
namespace {

// Searches the sorted dictionary like a prefix tree. All words that begin with the same bytes form a range of
// the dictionary. At each byte of the query's word, every edit is tried. After an edit, the rest of the
// query's word must follow unchanged. So only a few hundred ranges are looked up. A comparison with each word
// of the dictionary would take about a thousand times as many steps.
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
  // Tries every edit at offset `depth` of the text. `prefix` is the text before this offset, and `range` has
  // the words that begin with `prefix`.
  void editAt(std::size_t depth, const std::string& prefix, TextRange range) {
    const std::string_view rest = text_.substr(depth);
    if (!rest.empty()) accept(prefix, rest.substr(1), range);  // remove a byte
    if (rest.size() >= 2 && rest[0] != rest[1])
      accept(prefix + rest[1] + rest[0], rest.substr(2), range);  // swap two bytes
    for (const SearchLanguage& language : searchLanguages) {
      for (std::string_view rules = language.sounds; !rules.empty();) {
        std::string_view rule = takePart(rules, '\n');
        const std::string_view typed = takePart(rule, '\t');
        if (rest.starts_with(typed)) accept(prefix + std::string(rule), rest.substr(typed.size()), range);
      }
    }
    // Try each byte that follows the prefix in the dictionary: once as a replacement, and once as an
    // insertion.
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

  // Adds the words for the edited text, which is `prefix` + `rest`. Looks only at the words in `within`.
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

  static constexpr std::size_t leastPrefix = 4;  // in bytes; too many words begin with a shorter prefix

  const Index& index_;
  QueryWord& word_;
  std::string_view text_;
};

constexpr std::size_t leastLetters = 4;        // in bytes; shorter words are not corrected
constexpr std::size_t leastLettersForTwo = 8;  // in bytes; in shorter words only one mistake is corrected
constexpr std::size_t mostMistakes = 2;
constexpr std::size_t longestCompared = 32;

// Returns the number of edits between two texts. An edit inserts, removes or replaces a byte, or swaps two
// adjacent bytes. If more than mostMistakes edits are needed, returns some number above mostMistakes. Both
// texts must have at most longestCompared bytes.
std::size_t mistakes(std::string_view a, std::string_view b) {
  std::array<std::array<std::size_t, longestCompared + 1>, 3> rows{};  // for three bytes of `a`
  for (std::size_t j = 0; j <= b.size(); ++j) rows[0][j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    auto& row = rows[i % 3];
    const auto& above = rows[(i + 2) % 3];
    std::size_t least = row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
        row[j] = std::min(row[j], rows[(i + 1) % 3][j - 2] + 1);
      least = std::min(least, row[j]);
    }
    if (least > mostMistakes) return least;
  }
  return rows[a.size() % 3][b.size()];
}

// Compares the word with those words of the dictionary that begin with the same letter and are about as long.
// People seldom mistype the first letter.
void addWordsWithTwoMistakes(const Index& index, QueryWord& word) {
  const std::string_view text = word.text;
  const TextRange range = index.words.withPrefix(text.substr(0, 1));
  for (std::uint32_t place = range.first; place < range.last; ++place) {
    const std::string_view known = index.words[place];
    if (known.size() > longestCompared || known.size() + mostMistakes < text.size() ||
        text.size() + mostMistakes < known.size())
      continue;
    if (mistakes(text, known) <= mostMistakes)
      word.alternatives.push_back({{place, place + 1}, WordMatch::typo});
  }
}

}  // namespace

void addMistypedWords(const Index& index, QueryWord& word) {
  const std::size_t size = word.text.size();
  if (size < leastLetters) return;
  MistypedWords(index, word).find();
  if (word.alternatives.empty() && size >= leastLettersForTwo && size <= longestCompared)
    addWordsWithTwoMistakes(index, word);
}

}  // namespace glyph::search
