// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>

#include "glyphorium/search/index_image.h"
#include "glyphorium/search/mistyped_words.h"
namespace glyph::search {
namespace {

// Returns whether one edit changes one text into the other. An edit removes, inserts or replaces one letter,
// or exchanges two neighbouring letters.
bool isOneEdit(std::string_view a, std::string_view b) {
  if (a.size() > b.size()) std::swap(a, b);
  std::size_t head = 0;
  while (head < a.size() && a[head] == b[head]) ++head;
  const std::string_view restA = a.substr(head);
  const std::string_view restB = b.substr(head);
  if (restA.size() + 1 == restB.size()) return restA == restB.substr(1);
  if (restA.size() != restB.size() || restA.empty()) return false;
  if (restA.substr(1) == restB.substr(1)) return true;
  return restA.size() > 1 && restA[0] == restB[1] && restA[1] == restB[0] &&
         restA.substr(2) == restB.substr(2);
}

// addMistypedWords() does not compare the mistyped word with every word of the dictionary. This test makes
// that comparison and expects the same words, except words with digits.
TEST(MistypedWords, AreAllWordsThatDifferByOneEdit) {
  const Index index = openIndex(catalogIndexImage());
  for (const char* const text : {"arow", "arrow", "aarrow", "elipsis", "xarrow", "rokcet", "letterx", "sqare",
                                 "quostion", "teh1", "circel", "starr", "zzzz", "heart"}) {
    QueryWord word{text, {}, false};
    addMistypedWords(index, word);
    std::set<std::string> found;
    for (const Alternative& alternative : word.alternatives) {
      if (alternative.match != WordMatch::typo) continue;
      for (std::uint32_t id = alternative.words.first; id < alternative.words.last; ++id)
        found.emplace(index.words[id]);
    }
    std::set<std::string> wanted;
    for (std::uint32_t id = 0; id < index.words.size(); ++id) {
      const std::string_view other = index.words[id];
      if (isOneEdit(text, other) && other.find_first_of("0123456789") == other.npos) wanted.emplace(other);
    }
    EXPECT_EQ(found, wanted) << text;
  }
}

// A long word may have two mistakes, but only if no word is closer.
TEST(MistypedWords, LongWordsMayHaveTwoMistakes) {
  const Index index = openIndex(catalogIndexImage());
  const std::pair<const char*, const char*> cases[] = {
      {"cocholate", "chocolate"}, {"guillemais", "guillemets"}, {"cocholat", ""}, {"circel", "circle"}};
  for (const auto& [typed, meant] : cases) {
    QueryWord word{typed, {}, false};
    addMistypedWords(index, word);
    std::set<std::string_view> found;
    for (const Alternative& alternative : word.alternatives) {
      if (alternative.match == WordMatch::typo) found.insert(index.words[alternative.words.first]);
    }
    EXPECT_EQ(found.contains(meant), *meant != '\0') << typed;
  }
}

}  // namespace
}  // namespace glyph::search
