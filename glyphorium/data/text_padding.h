// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Readable bytes behind every embedded text, so that the JSON parser, which reads in wide steps, can parse
/// it where it lies.
inline constexpr std::size_t textPadding = 64;

}  // namespace glyph
