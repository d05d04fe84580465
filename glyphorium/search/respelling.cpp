// SPDX-License-Identifier: MIT
#include "glyphorium/search/respelling.h"

#include <algorithm>
#include <string_view>

#include "glyphorium/search/text_parts.h"

namespace glyph::search {
namespace {

constexpr std::size_t mostParts = 4;
constexpr std::size_t shortestPart = 2;
constexpr std::size_t mostSplits = 6;
constexpr std::size_t longestSplit = 40;  // in bytes; there are too many ways to split longer words

using Words = std::vector<std::string>;

// Splits a word into words of the dictionary. The last part may be incomplete.
class Splitter {
 public:
  Splitter(const Index& index, const std::vector<std::string_view>& linkingLetters)
      : index_(index), linkingLetters_(linkingLetters) {}

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
    for (std::size_t size = shortestPart; size + shortestPart <= rest.size(); ++size) {
      if (index_.words.exactly(rest.substr(0, size)).empty()) continue;
      parts_.emplace_back(rest.substr(0, size));
      step(rest.substr(size));
      // Skip linking letters, such as the second "s" of "Geburtstagstorte".
      for (const std::string_view linking : linkingLetters_) {
        if (rest.substr(size).starts_with(linking) && size + linking.size() + shortestPart <= rest.size())
          step(rest.substr(size + linking.size()));
      }
      parts_.pop_back();
    }
  }

  const Index& index_;
  const std::vector<std::string_view>& linkingLetters_;
  Words parts_;
  std::vector<Words> ways_;
};

}  // namespace

std::vector<Words> respellings(const Index& index, const Words& words, const Languages& languages) {
  std::vector<Words> result;
  Words respelled;
  for (const std::string& word : words) respelled.push_back(withoutTypedSpellings(word));
  if (respelled != words) result.push_back(std::move(respelled));
  std::vector<std::string_view> linkingLetters;
  for (const SearchLanguage* const language : languages) {
    for (std::string_view rest = language->linkingLetters; !rest.empty();)
      linkingLetters.push_back(takePart(rest, '\n'));
  }
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words.size() > 1 && !index.words.exactly(words[i]).empty()) continue;
    for (Words& parts : Splitter(index, linkingLetters).split(words[i])) {
      Words split = words;
      const auto place = split.erase(split.begin() + static_cast<std::ptrdiff_t>(i));
      split.insert(place, parts.begin(), parts.end());
      result.push_back(std::move(split));
    }
  }
  for (std::size_t i = 0; i + 1 < words.size(); ++i) {
    const std::string both = words[i] + words[i + 1];
    const bool known = !index.words.withPrefix(both).empty() ||
                       std::any_of(languages.begin(), languages.end(), [&](const SearchLanguage* language) {
                         return !synonymsOf(*language, both).empty();
                       });
    if (!known) continue;
    Words joined = words;
    joined[i] = both;
    joined.erase(joined.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    result.push_back(std::move(joined));
  }
  return result;
}

}  // namespace glyph::search
