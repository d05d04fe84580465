// SPDX-License-Identifier: MIT
#include "glyphorium/text/nearest_texts.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the Levenshtein distance: how many bytes must be inserted, deleted or replaced to change one text
// into the other.
std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t substituted = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, substituted});
    }
  }
  return row[b.size()];
}

}  // namespace

std::vector<std::string> nearestTexts(std::string_view text, const std::vector<std::string>& candidates,
                                      std::size_t limit) {
  const std::string lower = lowercased(text);
  const std::size_t farthest = std::max<std::size_t>(2, lower.size() / 3);
  std::vector<std::pair<std::size_t, const std::string*>> near;
  for (const std::string& candidate : candidates) {
    const std::string other = lowercased(candidate);
    // A candidate that contains the text gets the distance 1, even if the candidate is much longer.
    const bool part = lower.size() >= 3 && other.find(lower) != std::string::npos;
    const std::size_t lengths =
        other.size() > lower.size() ? other.size() - lower.size() : lower.size() - other.size();
    if (!part && lengths > farthest) continue;  // the distance is at least the difference of the lengths
    const std::size_t distance = part ? 1 : editDistance(lower, other);
    if (distance <= farthest) near.emplace_back(distance, &candidate);
  }
  std::stable_sort(near.begin(), near.end(), [](auto& a, auto& b) { return a.first < b.first; });
  std::vector<std::string> result;
  for (const auto& [distance, candidate] : near) {
    if (result.size() == limit) break;
    result.push_back(*candidate);
  }
  return result;
}

}  // namespace glyph
