// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace glyph {

/// What settings_writer stores as its n-th state: of a length that makes the pages it takes come and go.
inline std::vector<std::string> settingsState(long number) {
  return std::vector<std::string>(static_cast<std::size_t>(number * 37 % 500) + 1, std::to_string(number));
}

}  // namespace glyph
