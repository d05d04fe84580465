// SPDX-License-Identifier: MIT
#include "glyphorium/search/text_list.h"

namespace glyph::search {

TextRange TextList::withPrefix(std::string_view prefix) const {
  return withPrefix(prefix, {0, size()});
}

TextRange TextList::withPrefix(std::string_view prefix, TextRange within) const {
  // std::string_view compares unsigned bytes. The texts are sorted in the same order.
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

}  // namespace glyph::search
