// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <optional>
#include <string_view>

namespace glyph::search {

/// Returns the text before the first separator, and removes that text and the separator from `rest`. If there
/// is no separator, returns the whole text and leaves `rest` empty.
inline std::string_view takePart(std::string_view& rest, char separator) {
  const std::string_view part = rest.substr(0, rest.find(separator));
  rest.remove_prefix(std::min(part.size() + 1, rest.size()));
  return part;
}

/// Skips the lines whose first column is less than `text`, and returns the rest. The lines must be in
/// ascending byte order of their first columns, which end at a tab or a line feed.
inline std::string_view firstLineFrom(std::string_view lines, std::string_view text) {
  std::size_t first = 0;
  for (std::size_t last = lines.size(); first < last;) {
    // Look at the line in the middle. In the first line, rfind() returns npos, and npos + 1 is 0.
    const std::size_t middle = first + (last - first) / 2;
    const std::size_t begin = middle == 0 ? 0 : lines.rfind('\n', middle - 1) + 1;
    std::string_view line = lines.substr(begin, lines.find('\n', begin) - begin);
    const std::size_t end = begin + line.size() + 1;
    if (takePart(line, '\t') < text)
      first = end;
    else
      last = begin;
  }
  return lines.substr(std::min(first, lines.size()));
}

/// Returns the columns after the first column of the line whose first column is `text`. Returns nullopt if
/// there is no such line. The lines must be as for firstLineFrom().
inline std::optional<std::string_view> findLine(std::string_view lines, std::string_view text) {
  std::string_view rest = firstLineFrom(lines, text);
  std::string_view line = takePart(rest, '\n');
  if (takePart(line, '\t') != text) return std::nullopt;
  return line;
}

}  // namespace glyph::search
