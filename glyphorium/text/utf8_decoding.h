// SPDX-License-Identifier: MIT
#pragma once

#include <unicode/utf8.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace glyph {

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"  // the macro U8_NEXT of ICU causes this warning
/// Returns the code point that begins at text[i], or a negative number if the sequence there is ill-formed.
/// Moves `i` past the sequence. `i` must be smaller than the size of the text.
inline std::int32_t nextCodePoint(std::string_view text, std::size_t& i) {
  std::int32_t codePoint;
  U8_NEXT(text.data(), i, text.size(), codePoint);
  return codePoint;
}
#pragma GCC diagnostic pop

}  // namespace glyph
