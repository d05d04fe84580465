// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string_view>

namespace glyph::search {

/// Returns the text before the first separator, and removes both from `rest`. Without a separator it takes
/// all.
inline std::string_view takePart(std::string_view& rest, char separator) {
  const std::string_view part = rest.substr(0, rest.find(separator));
  rest.remove_prefix(std::min(part.size() + 1, rest.size()));
  return part;
}

}  // namespace glyph::search
