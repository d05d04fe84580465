// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace glyph::search {

/// Consecutive texts of a list, from `first` up to but not including `last`.
struct TextRange {
  std::uint32_t first = 0;
  std::uint32_t last = 0;
  bool empty() const { return first == last; }
};

/// A list of texts that are stored in one block of bytes. This is a view: the bytes and the offsets must
/// outlive the list.
struct TextList {
  std::span<const char> bytes;
  std::span<const std::uint32_t> begins;  ///< the offset of each text in `bytes`, then the size of `bytes`

  std::uint32_t size() const { return static_cast<std::uint32_t>(begins.size() - 1); }
  std::string_view operator[](std::uint32_t i) const {
    return {bytes.data() + begins[i], begins[i + 1] - begins[i]};
  }

  // The following functions need a list that is sorted in ascending byte order.

  /// Returns the texts that begin with `prefix`. If `prefix` itself is in the list, it is the first text of
  /// the range.
  TextRange withPrefix(std::string_view prefix) const;
  /// Returns the texts in the range `within` that begin with `prefix`.
  TextRange withPrefix(std::string_view prefix, TextRange within) const;
  /// Returns the range that contains only `text`. The range is empty if `text` is not in the list.
  TextRange exactly(std::string_view text) const;
};

}  // namespace glyph::search
