// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Values as JSON text, one by one: the JSON library's own arrays and objects allocate memory while they are
/// destroyed, and end the program where there is none.
namespace glyph {

/// Ill-formed UTF-8 becomes U+FFFD.
std::string jsonText(std::string_view text);
std::string jsonText(const std::vector<std::string>& list);

}  // namespace glyph
