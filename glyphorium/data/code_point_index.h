// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace glyph {

/// An index of a longer text that consists of the texts of many code points: the offset at which the text of
/// each code point begins. It is a sequence of pairs of little-endian 24-bit integers, a code point and an
/// offset, in ascending order of code points. This is a view of the library's read-only image.
class CodePointIndex {
 public:
  struct Entry {
    std::uint32_t codePoint;
    std::uint32_t offset;
  };

  static constexpr std::size_t numberSize = 3;  ///< in bytes

  explicit constexpr CodePointIndex(std::string_view pairs) : pairs_(pairs) {}

  std::size_t size() const noexcept { return pairs_.size() / (2 * numberSize); }

  Entry operator[](std::size_t position) const noexcept {
    const char* const pair = pairs_.data() + position * 2 * numberSize;
    return {number(pair), number(pair + numberSize)};
  }

  /// Returns the part of `text` from the offset of the entry at this position to the offset of the next entry
  /// or the end of `text`. The offsets must be in ascending order.
  std::string_view slice(std::string_view text, std::size_t position) const noexcept {
    const std::size_t begin = (*this)[position].offset;
    const std::size_t end = position + 1 < size() ? (*this)[position + 1].offset : text.size();
    return text.substr(begin, end - begin);
  }

  /// Returns the position of the last entry whose code point is not greater than `codePoint`. Returns nullopt
  /// if there is no such entry.
  std::optional<std::size_t> findUpTo(std::uint32_t codePoint) const noexcept {
    std::size_t begin = 0;
    for (std::size_t end = size(); begin < end;) {
      const std::size_t middle = begin + (end - begin) / 2;
      if ((*this)[middle].codePoint <= codePoint) {
        begin = middle + 1;
      } else {
        end = middle;
      }
    }
    return begin ? std::optional(begin - 1) : std::nullopt;
  }

  /// Returns the position of the code point's entry. Returns nullopt if there is no such entry.
  std::optional<std::size_t> find(std::uint32_t codePoint) const noexcept {
    const auto position = findUpTo(codePoint);
    return position && (*this)[*position].codePoint == codePoint ? position : std::nullopt;
  }

 private:
  static std::uint32_t number(const char* bytes) noexcept {
    const auto byte = [&](int i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])} << 8 * i; };
    return byte(0) | byte(1) | byte(2);
  }

  std::string_view pairs_;
};

}  // namespace glyph
