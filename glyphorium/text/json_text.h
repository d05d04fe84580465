// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Functions that return values as JSON text. The text of an array is joined here from the texts of its
/// elements. The arrays of the JSON library are not used, because their destructors allocate memory and
/// terminate the program when memory runs out.
namespace glyph {

/// Returns the value as JSON text. Ill-formed UTF-8 is replaced with U+FFFD.
std::string jsonText(std::string_view text);
template <class Text>
std::string jsonText(const std::vector<Text>& list) {
  std::string text = "[";
  for (const Text& item : list) {
    if (text.size() > 1) text += ',';
    text += jsonText(std::string_view(item));
  }
  return text += ']';
}

}  // namespace glyph
