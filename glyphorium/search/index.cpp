// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/search/index_internal.h"

namespace glyph::search {

WordRange Index::withPrefix(std::string_view prefix) const {
  return withPrefix(prefix, {0, wordCount()});
}

WordRange Index::withPrefix(std::string_view prefix, WordRange within) const {
  // char_traits compare as unsigned bytes, which is the order the dictionary was sorted in.
  const auto bound = [&](std::uint32_t low, std::uint32_t high, auto isBefore) {
    while (low < high) {
      const std::uint32_t middle = low + (high - low) / 2;
      if (isBefore(word(middle)))
        low = middle + 1;
      else
        high = middle;
    }
    return low;
  };
  const std::uint32_t first =
      bound(within.first, within.last, [&](std::string_view word) { return word < prefix; });
  const std::uint32_t last = bound(
      first, within.last, [&](std::string_view word) { return word.substr(0, prefix.size()) <= prefix; });
  return {first, last};
}

WordRange Index::exactly(std::string_view text) const {
  WordRange range = withPrefix(text);
  if (range.empty() || word(range.first) != text) return {};
  range.last = range.first + 1;
  return range;
}

namespace {

template <typename Pairs, typename Key>
std::uint32_t docOf(const Pairs& pairs, const Key& key) {
  const auto found = std::lower_bound(pairs.begin(), pairs.end(), key,
                                      [](const auto& pair, const Key& k) { return pair.first < k; });
  return found == pairs.end() || found->first != key ? Index::noDoc : found->second;
}

}  // namespace

std::uint32_t Index::docOfCodePoint(std::uint32_t codePoint) const {
  return docOf(byCodePoint, codePoint);
}

std::uint32_t Index::docOfHtmlName(std::string_view name) const {
  return docOf(htmlNames, name);
}

std::size_t Index::byteCount() const {
  const auto bytes = [](const auto& vector) { return vector.capacity() * sizeof vector[0]; };
  std::size_t sum = sizeof *this + bytes(docEntity) + bytes(docCodePoint) + bytes(docPrior) +
                    bytes(nameOffset) + names.capacity() + bytes(byCodePoint) + bytes(phrases) +
                    words.capacity() + bytes(wordOffset) + bytes(postingStart) + bytes(postings) +
                    bytes(signPhrases) + bytes(htmlNames) + bytes(synonyms) + bytes(groups) +
                    bytes(languages);
  for (const auto& [key, phrase] : signPhrases) sum += key.capacity();
  for (const Group& group : groups) {
    sum += group.name.capacity() + bytes(group.words) + bytes(group.docs);
    for (const std::string& word : group.words) sum += word.capacity();
  }
  return sum;
}

}  // namespace glyph::search
