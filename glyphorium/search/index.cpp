// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/search/index.h"
#include "glyphorium/search/words.h"

namespace glyph::search {

TextRange TextList::withPrefix(std::string_view prefix) const {
  return withPrefix(prefix, {0, size()});
}

TextRange TextList::withPrefix(std::string_view prefix, TextRange within) const {
  // char_traits compare as unsigned bytes, which is the order the texts were sorted in.
  const auto bound = [&](std::uint32_t low, std::uint32_t high, auto isBefore) {
    while (low < high) {
      const std::uint32_t middle = low + (high - low) / 2;
      if (isBefore((*this)[middle]))
        low = middle + 1;
      else
        high = middle;
    }
    return low;
  };
  const std::uint32_t first =
      bound(within.first, within.last, [&](std::string_view text) { return text < prefix; });
  const std::uint32_t last = bound(
      first, within.last, [&](std::string_view text) { return text.substr(0, prefix.size()) <= prefix; });
  return {first, last};
}

TextRange TextList::exactly(std::string_view text) const {
  TextRange range = withPrefix(text);
  if (range.empty() || (*this)[range.first] != text) return {};
  range.last = range.first + 1;
  return range;
}

std::uint32_t Index::docOfCodePoint(std::uint32_t codePoint) const {
  const auto found = std::lower_bound(byCodePoint.begin(), byCodePoint.end(), codePoint,
                                      [](const CodePointDoc& a, std::uint32_t b) { return a.codePoint < b; });
  return found == byCodePoint.end() || found->codePoint != codePoint ? noDoc : found->doc;
}

std::uint32_t Index::docOfHtmlName(std::string_view name) const {
  const TextRange found = htmlNames.exactly(name);
  return found.empty() ? noDoc : htmlDocs[found.first];
}

bool Index::hasLanguage(std::string_view language, std::uint32_t languageBits) const {
  for (std::uint32_t i = 0; i < languages.size(); ++i) {
    if ((languageBits >> i & 1) != 0 && languages[i] == language) return true;
  }
  return false;
}

bool Index::isFunctionWord(std::string_view word, std::uint32_t languageBits) const {
  for (std::uint32_t i = 0; i < languages.size(); ++i) {
    if ((languageBits >> i & 1) != 0 && search::isFunctionWord(word, languages[i])) return true;
  }
  return false;
}

bool Group::hasWordWithPrefix(std::string_view prefix) const {
  for (std::size_t at = words.find(prefix); at != std::string_view::npos; at = words.find(prefix, at + 1)) {
    if (at == 0 || words[at - 1] == ' ') return true;
  }
  return false;
}

}  // namespace glyph::search
