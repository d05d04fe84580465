// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/search/matching.h"

namespace glyph::search {
namespace {

constexpr std::size_t mostParts = 4;
constexpr std::size_t leastPart = 2;
constexpr std::size_t mostSplits = 6;
constexpr std::size_t longestSplit = 40;  // the number of ways to split grows with the length

using Words = std::vector<std::string>;

// "haekchen" for "häkchen", which folds to "hakchen".
std::string withoutUmlautSpelling(std::string_view word) {
  std::string result;
  for (std::size_t i = 0; i < word.size(); ++i) {
    result += word[i];
    if (i + 1 < word.size() && word[i + 1] == 'e' && (word[i] == 'a' || word[i] == 'o' || word[i] == 'u'))
      ++i;
  }
  return result;
}

// The ways to split a word into words of the dictionary, of which the last may be incomplete.
class Splitter {
 public:
  Splitter(const Index& index, bool isGerman) : index_(index), isGerman_(isGerman) {}

  std::vector<Words> split(std::string_view word) {
    const bool number = word.find_first_of("0123456789") != std::string_view::npos;
    if (word.size() <= longestSplit && !number) step(word);
    std::stable_sort(ways_.begin(), ways_.end(),
                     [](const Words& a, const Words& b) { return a.size() < b.size(); });
    if (ways_.size() > mostSplits) ways_.resize(mostSplits);
    return std::move(ways_);
  }

 private:
  void step(std::string_view rest) {
    if (!parts_.empty() && !index_.words.withPrefix(rest).empty()) {
      ways_.push_back(parts_);
      ways_.back().emplace_back(rest);
    }
    if (parts_.size() + 1 == mostParts) return;
    for (std::size_t size = leastPart; size + leastPart <= rest.size(); ++size) {
      if (index_.words.exactly(rest.substr(0, size)).empty()) continue;
      parts_.emplace_back(rest.substr(0, size));
      step(rest.substr(size));
      // Letters of no meaning may join them: "Geburtstagstorte".
      for (const std::string_view joint : {"s", "n", "es", "en", "er"}) {
        if (isGerman_ && rest.substr(size).starts_with(joint) &&
            size + joint.size() + leastPart <= rest.size())
          step(rest.substr(size + joint.size()));
      }
      parts_.pop_back();
    }
  }

  const Index& index_;
  const bool isGerman_;
  Words parts_;
  std::vector<Words> ways_;
};

}  // namespace

std::vector<Words> respellings(const Index& index, const Words& words, std::uint32_t languages) {
  std::vector<Words> result;
  Words meaningful;
  for (const std::string& word : words) {
    if (!index.isFunctionWord(word, languages)) meaningful.push_back(word);
  }
  if (!meaningful.empty() && meaningful.size() < words.size()) result.push_back(std::move(meaningful));
  Words umlauts;
  for (const std::string& word : words) umlauts.push_back(withoutUmlautSpelling(word));
  if (umlauts != words) result.push_back(std::move(umlauts));
  for (std::size_t i = 0; i < words.size(); ++i) {
    for (Words& parts : Splitter(index, index.hasLanguage("de", languages)).split(words[i])) {
      Words split = words;
      const auto place = split.erase(split.begin() + static_cast<std::ptrdiff_t>(i));
      split.insert(place, parts.begin(), parts.end());
      result.push_back(std::move(split));
    }
  }
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    if (index.words.withPrefix(words[i] + words[i + 1]).empty()) continue;
    Words joined = words;
    joined[i] += joined[i + 1];
    joined.erase(joined.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    result.push_back(std::move(joined));
  }
  return result;
}

}  // namespace glyph::search
