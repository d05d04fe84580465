// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// The calls of operator new on this thread that fail: those with the numbers `first` to `last`. `calls` is
/// the number of calls so far; set it to 0 to begin.
struct FailingNew {
  std::size_t first = 0, last = 0, calls = 0;
};
extern thread_local FailingNew failingNew;

}  // namespace glyph
