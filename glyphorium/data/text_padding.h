// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Number of readable bytes behind each embedded text. The JSON parser reads several bytes at a time. With
/// the padding it can parse a text in place.
inline constexpr std::size_t textPadding = 64;

}  // namespace glyph
