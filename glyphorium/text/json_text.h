// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Values as JSON text. Arrays are joined here from their elements, not built as arrays of the JSON library:
/// those allocate memory in their destructors and end the program when memory runs out.
namespace glyph {

/// Ill-formed UTF-8 becomes U+FFFD.
std::string jsonText(std::string_view text);
std::string jsonText(const std::vector<std::string>& list);

}  // namespace glyph
