// SPDX-License-Identifier: MIT
#include "glyphorium/search/index.h"

#include <algorithm>

namespace glyph::search {

std::uint32_t Index::docOfCodePoint(std::uint32_t codePoint) const {
  if (byCodePoint.empty()) {
    for (auto prior = docPrior.begin(); prior != docPrior.end();) {
      const auto next = std::upper_bound(prior, docPrior.end(), *prior);
      const auto first = docCodePoint.begin() + (prior - docPrior.begin());
      const auto last = docCodePoint.begin() + (next - docPrior.begin());
      const auto found = std::lower_bound(first, last, codePoint);
      if (found != last && *found == codePoint)
        return static_cast<std::uint32_t>(found - docCodePoint.begin());
      prior = next;
    }
    return noDoc;
  }
  const auto found =
      std::lower_bound(byCodePoint.begin(), byCodePoint.end(), codePoint,
                       [&](std::uint32_t doc, std::uint32_t b) { return docCodePoint[doc] < b; });
  return found == byCodePoint.end() || docCodePoint[*found] != codePoint ? noDoc : *found;
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

bool Group::hasWordWithPrefix(std::string_view prefix) const {
  for (std::size_t at = words.find(prefix); at != std::string_view::npos; at = words.find(prefix, at + 1)) {
    if (at == 0 || words[at - 1] == ' ') return true;
  }
  return false;
}

}  // namespace glyph::search
