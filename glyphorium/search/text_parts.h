// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

namespace glyph::search {

/// Returns the text before the first separator, and removes that text and the separator from `rest`. If there
/// is no separator, returns the whole text and leaves `rest` empty.
inline std::string_view takePart(std::string_view& rest, char separator) {
  const std::string_view part = rest.substr(0, rest.find(separator));
  rest.remove_prefix(std::min(part.size() + 1, rest.size()));
  return part;
}

}  // namespace glyph::search
