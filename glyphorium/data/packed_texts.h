// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

/// One line of text for each of many code points, like CodePointTexts, but in about half the memory. Each
/// byte of a packed line stands for a piece of text that is frequent in the table. This is a view of the
/// library's read-only image.
struct PackedTexts {
  static constexpr std::size_t longestPiece = 11;
  static constexpr unsigned char endOfLine = 0;
  static constexpr unsigned char literal = 255;  ///< says that the next byte is a byte of the text itself

  CodePointIndex index;  ///< the offset in `lines` at which the line of a code point begins
  /// The pieces that the bytes 1 to 254 stand for. Each piece has one byte for its size and longestPiece
  /// bytes for its text.
  std::string_view pieces;
  std::string_view lines;

  std::size_t size() const noexcept { return index.size(); }
  char32_t codePoint(std::size_t position) const noexcept { return index[position].codePoint; }

  /// Returns the line at this position.
  std::string line(std::size_t position) const {
    std::string text;
    for (std::size_t at = index[position].offset;; ++at) {
      const auto byte = static_cast<unsigned char>(lines[at]);
      if (byte == endOfLine) return text;
      if (byte == literal) {
        text += lines[++at];
        continue;
      }
      const std::size_t piece = (byte - 1u) * (longestPiece + 1);
      text += pieces.substr(piece + 1, static_cast<unsigned char>(pieces[piece]));
    }
  }

  /// Returns the line of the code point. Empty if the code point has no line.
  std::string find(char32_t codePoint) const {
    const auto position = index.find(codePoint);
    return position ? line(*position) : std::string();
  }
};

}  // namespace glyph
