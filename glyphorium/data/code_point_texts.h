// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "glyphorium/data/code_point_index.h"

namespace glyph {

/// One line of text for each of many code points, or for each of many ranges of code points. Several code
/// points may share a line. Tabs separate the columns of a line. This is a view of the library's read-only
/// image.
struct CodePointTexts {
  CodePointIndex index;  ///< the offset in `texts` at which the line of a code point begins
  std::string_view texts;

  std::size_t size() const noexcept { return index.size(); }
  char32_t codePoint(std::size_t position) const noexcept { return index[position].codePoint; }

  /// Returns the line at this position, without its line feed.
  std::string_view line(std::size_t position) const noexcept {
    const std::string_view rest = texts.substr(index[position].offset);
    return rest.substr(0, rest.find('\n'));
  }

  /// Returns the line of the code point. Returns nullopt if the code point has no line.
  std::optional<std::string_view> find(char32_t codePoint) const noexcept {
    const auto position = index.find(codePoint);
    return position ? std::optional(line(*position)) : std::nullopt;
  }

  /// Returns the position of the last entry whose code point is not greater than `codePoint`. Returns nullopt
  /// if there is no such entry.
  std::optional<std::size_t> positionUpTo(char32_t codePoint) const noexcept {
    return index.findUpTo(codePoint);
  }
};

/// Returns column `number` of the line, counted from 0. Empty if the line has fewer columns.
constexpr std::string_view column(std::string_view line, std::size_t number) noexcept {
  for (; number > 0; --number) {
    const std::size_t tab = line.find('\t');
    if (tab == std::string_view::npos) return {};
    line.remove_prefix(tab + 1);
  }
  return line.substr(0, line.find('\t'));
}

}  // namespace glyph
