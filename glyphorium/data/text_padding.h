// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Number of readable bytes after each embedded text. The JSON parser reads several bytes at a time, and so
/// reads beyond the end of a text. The padding allows the parser to parse a text in place.
inline constexpr std::size_t textPadding = 64;

}  // namespace glyph
