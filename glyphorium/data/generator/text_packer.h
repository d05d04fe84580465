// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace glyph::generator {

/// Packs texts into the form of PackedTexts.
class TextPacker {
 public:
  /// Chooses the pieces of text with which these lines become shortest.
  explicit TextPacker(const std::vector<std::string>& lines);

  /// Returns the pieces in the form of PackedTexts::pieces.
  std::string pieces() const;
  /// Returns the packed line, including PackedTexts::endOfLine. The line need not be one of the constructor's
  /// lines.
  std::string packed(std::string_view line) const;

 private:
  void choose(std::vector<std::string> pieces);
  /// Returns the index in pieces_ of the longest piece with which the text begins, or pieces_.size() if it
  /// begins with no piece.
  std::size_t longestAt(std::string_view text) const;

  std::vector<std::string> pieces_;
  std::array<std::vector<std::size_t>, 256> byFirst_;  // indexes in pieces_, by first byte, longest first
};

}  // namespace glyph::generator
