// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace glyph::search {

/// Consecutive texts of a list: [first, last).
struct TextRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  bool empty() const { return first == last; }
};

/// A list of texts, stored in one block of bytes. A view: the bytes and offsets must outlive it.
struct TextList {
  std::span<const char> bytes;
  std::span<const std::uint32_t> begins;  ///< offset of each text in `bytes`, then the size of `bytes`

  std::uint32_t size() const { return static_cast<std::uint32_t>(begins.size() - 1); }
  std::string_view operator[](std::uint32_t i) const {
    return {bytes.data() + begins[i], begins[i + 1] - begins[i]};
  }

  // The following need a list in ascending order of bytes.

  /// The texts that begin with `prefix`. If the prefix itself is in the list, it is the first of them.
  TextRange withPrefix(std::string_view prefix) const;
  /// The same, looking only at the texts in `within`.
  TextRange withPrefix(std::string_view prefix, TextRange within) const;
  /// The text itself; an empty range if it is not in the list.
  TextRange exactly(std::string_view text) const;
};

}  // namespace glyph::search
