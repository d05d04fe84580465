// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Which of this thread's calls of operator new fail: those numbered from `first` to `last`, the next being
/// number 1 when `calls` is 0.
struct FailingNew {
  std::size_t first = 0, last = 0, calls = 0;
};
extern thread_local FailingNew failingNew;

}  // namespace glyph
