// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Selects the calls of operator new on this thread that fail: calls number `first` to `last`. The numbers
/// start at 1; if `last` is 0, no call fails. `calls` is the number of calls so far. Set `calls` to 0 to
/// start counting again.
struct FailingNew {
  std::size_t first = 0, last = 0, calls = 0;
};
extern thread_local FailingNew failingNew;

}  // namespace glyph
